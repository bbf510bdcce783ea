#pragma once

#include <cstdint>

#include "scene/event.h"
#include "scene/object.h"
#include "scene/property.h"

namespace quintara {

struct TimerStart {
  bool enabled = false;
  std::int32_t interval = 0;
};

// Ticks every Interval milliseconds for as long as it is enabled, its Interval is above 0 and its form is
// loaded.
class Timer : public Object {
 private:
  void WriteEnabled(bool enabled);
  void WriteInterval(std::int32_t milliseconds);

 public:
  Timer(Container& container, const ObjectName& name, const TimerStart& start);
  ~Timer() override;

  // Turning it on starts the wait for the next tick afresh; writing True to a timer that is on changes
  // nothing.
  ActiveProperty<bool, Timer, &Timer::WriteEnabled> Enabled;
  // Every write starts the wait afresh. A negative number counts as 0.
  ActiveProperty<std::int32_t, Timer, &Timer::WriteInterval> Interval;
  Event<> Tick;

  bool IsRunning() const;
  // Called by the form when it is loaded: a timer that starts enabled begins its first wait.
  void BeginWait();
  void Restore() override;

 private:
  friend class Dispatcher;

  TimerStart start_;
  std::int64_t due_ = 0;         // the clock's time of the next tick
  std::uint64_t waitBegan_ = 0;  // order among all waits
};

}  // namespace quintara
