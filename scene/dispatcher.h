#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace quintara {

class Form;
class Timer;

// Runs one handler at a time, to its end, in the order in which events arrive and ticks fall due. It keeps a
// clock in milliseconds that moves only when it is told to.
class Dispatcher {
 public:
  Dispatcher() = default;
  Dispatcher(const Dispatcher&) = delete;
  Dispatcher& operator=(const Dispatcher&) = delete;

  std::int64_t now() const { return now_; }

  // Moves the clock on to `time` and runs every tick that falls due on the way, at its due time, in order: at
  // equal times the shorter Interval first, then the wait that began first. Does nothing while a handler
  // runs.
  void AdvanceTo(std::int64_t time);

  // The same for so many milliseconds from now.
  void Advance(std::int64_t milliseconds) { AdvanceTo(now_ + milliseconds); }

  // Lets time go by in which nothing ticks: a handler took long, or the machine was held up. Of the ticks
  // that a timer lost that way one comes late; the others are not made up, and its rhythm stays.
  void PassTime(std::int64_t milliseconds);

  // When the next tick is due; nothing while no timer runs. It may lie before now.
  std::optional<std::int64_t> NextDue() const;

  // Runs a handler of the form at once, or queues it while another one runs. Handlers queued for a form that
  // is unloaded meanwhile are dropped.
  void Run(Form& form, std::function<void()> handler);
  bool busy() const { return busy_; }

  // From now on nothing runs any more; the handler that runs ends normally.
  void Stop();

 private:
  friend class Form;
  friend class Timer;

  struct Queued {
    Form* form;
    std::function<void()> handler;
  };

  void Add(Timer& timer) { timers_.push_back(&timer); }
  void Remove(Timer& timer);
  void BeginWait(Timer& timer);
  // The form has been loaded: each of its timers begins its first wait.
  void BeginWaits(const Form& form);
  void DropQueued(const Form& form);
  Timer* Earliest() const;
  void Tick(Timer& timer);
  void RunToEnd(const std::function<void()>& handler);

  std::vector<Timer*> timers_;
  std::deque<Queued> queue_;
  std::int64_t now_ = 0;
  std::uint64_t waits_ = 0;
  bool busy_ = false;
  bool stopped_ = false;
};

}  // namespace quintara
