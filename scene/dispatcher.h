#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace quintara {

class Form;
class Scene;
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
  // runs. While it is held, or once a tick has it held, only the clock moves.
  void AdvanceTo(std::int64_t time);

  // The same for so many milliseconds from now.
  void Advance(std::int64_t milliseconds) { AdvanceTo(now_ + milliseconds); }

  // Lets time go by in which nothing ticks: a handler took long, or the machine was held up. Of the ticks
  // that a timer lost that way one comes late; the others are not made up, and its rhythm stays.
  void PassTime(std::int64_t milliseconds);

  // When the next tick is due; nothing while no timer runs. It may lie before now.
  std::optional<std::int64_t> NextDue() const;

  // Runs a handler of the form at once, or queues it while another one runs or the user is being asked
  // something. Handlers queued for a form that is unloaded meanwhile are dropped.
  void Run(Form& form, std::function<void()> handler);
  // Whether a handler would have to wait.
  bool busy() const { return running_ || held_; }

  // Nothing runs from now on but the handler that runs already, until Release. See Questions.
  void Hold() { held_ = true; }
  void Release();
  // What a handler of the form goes on with: it runs as soon as no handler runs and nothing is held, before
  // anything that was queued. Null: no form can take it along.
  void Continue(const Form* form, std::function<void()> handler);

  // Is called after each handler and each tick, before anything else runs. It may look at everything and must
  // change nothing.
  void Observe(std::function<void()> observer) { observer_ = std::move(observer); }

  // From now on nothing runs any more; the handler that runs ends normally.
  void Stop();

 private:
  friend class Form;
  friend class Scene;
  friend class Timer;

  struct Queued {
    const Form* form;
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
  void RunWaiting();
  void RunOne(const std::function<void()>& handler);

  std::vector<Timer*> timers_;
  std::deque<Queued> continuations_;
  std::deque<Queued> queue_;
  std::function<void()> observer_;
  std::int64_t now_ = 0;
  std::uint64_t waits_ = 0;
  bool running_ = false;
  bool held_ = false;
  bool stopped_ = false;
};

}  // namespace quintara
