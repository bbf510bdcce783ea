#include "scene/dispatcher.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "scene/timer.h"

namespace quintara {

void Dispatcher::AdvanceTo(std::int64_t time) {
  if (running_) return;
  while (!stopped_ && !held_) {
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
  if (busy()) {
    queue_.push_back({&form, std::move(handler)});
  } else {
    RunToEnd(handler);
  }
}

void Dispatcher::Release() {
  held_ = false;
  if (!running_) RunWaiting();
}

void Dispatcher::Continue(const Form* form, std::function<void()> handler) {
  if (!stopped_) continuations_.push_back({form, std::move(handler)});
}

void Dispatcher::Stop() {
  stopped_ = true;
  held_ = false;
  continuations_.clear();
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
  const auto isOfForm = [&](const Queued& queued) { return queued.form == &form; };
  std::erase_if(continuations_, isOfForm);
  std::erase_if(queue_, isOfForm);
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
  RunOne(handler);
  RunWaiting();
}

void Dispatcher::RunWaiting() {
  while (!held_) {
    auto& next = continuations_.empty() ? queue_ : continuations_;
    if (next.empty()) return;
    const auto waiting = std::move(next.front().handler);
    next.pop_front();
    RunOne(waiting);
  }
}

void Dispatcher::RunOne(const std::function<void()>& handler) {
  struct Running {
    bool& flag;
    explicit Running(bool& running) : flag(running) { flag = true; }
    ~Running() { flag = false; }
  } running(running_);
  handler();
  if (observer_) observer_();
}

}  // namespace quintara
