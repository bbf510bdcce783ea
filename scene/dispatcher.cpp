#include "scene/dispatcher.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "scene/timer.h"

namespace quintara {

void Dispatcher::AdvanceTo(std::int64_t time) {
  if (busy_) return;
  while (!stopped_) {
    Timer* timer = Earliest();
    // A handler may have let time pass beyond the time asked for: what fell due by then runs too.
    if (timer == nullptr || timer->due_ > std::max(time, now_)) break;
    Tick(*timer);
  }
  now_ = std::max(now_, time);
}

void Dispatcher::PassTime(std::int64_t milliseconds) {
  now_ += std::max<std::int64_t>(milliseconds, 0);
}

std::optional<std::int64_t> Dispatcher::NextDue() const {
  const Timer* timer = stopped_ ? nullptr : Earliest();
  return timer != nullptr ? std::optional(timer->due_) : std::nullopt;
}

void Dispatcher::Run(Form& form, std::function<void()> handler) {
  if (stopped_) return;
  if (busy_) {
    queue_.push_back({&form, std::move(handler)});
  } else {
    RunToEnd(handler);
  }
}

void Dispatcher::Stop() {
  stopped_ = true;
  queue_.clear();
}

void Dispatcher::Remove(Timer& timer) {
  std::erase(timers_, &timer);
}

void Dispatcher::BeginWait(Timer& timer) {
  timer.due_ = now_ + timer.Interval;
  timer.waitBegan_ = ++waits_;
}

void Dispatcher::BeginWaits(const Form& form) {
  for (Timer* timer : timers_) {
    if (&timer->form() == &form) BeginWait(*timer);
  }
}

void Dispatcher::DropQueued(const Form& form) {
  std::erase_if(queue_, [&](const Queued& queued) { return queued.form == &form; });
}

Timer* Dispatcher::Earliest() const {
  const auto order = [](const Timer* timer) {
    return std::make_tuple(timer->due_, timer->Interval.Get(), timer->waitBegan_);
  };
  Timer* earliest = nullptr;
  for (Timer* timer : timers_) {
    if (timer->IsRunning() && (earliest == nullptr || order(timer) < order(earliest))) earliest = timer;
  }
  return earliest;
}

void Dispatcher::Tick(Timer& timer) {
  now_ = std::max(now_, timer.due_);
  // The next tick keeps the rhythm; those that fell due while this one waited are lost.
  const std::int64_t interval = timer.Interval;
  timer.due_ += ((now_ - timer.due_) / interval + 1) * interval;
  timer.waitBegan_ = ++waits_;
  RunToEnd([&timer] { timer.Tick.Raise(); });
}

void Dispatcher::RunToEnd(const std::function<void()>& handler) {
  struct Busy {
    bool& flag;
    explicit Busy(bool& busy) : flag(busy) { flag = true; }
    ~Busy() { flag = false; }
  } busy(busy_);
  handler();
  while (!queue_.empty()) {
    const auto next = std::move(queue_.front().handler);
    queue_.pop_front();
    next();
  }
}

}  // namespace quintara
