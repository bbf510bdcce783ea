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
 public:
  Timer(Container& container, const ObjectName& name, const TimerStart& start);
  ~Timer() override;

  // Turning it on starts the wait for the next tick afresh; writing True to a timer that is on changes
  // nothing.
  ActiveProperty<bool, Timer> Enabled;
  // Every write starts the wait afresh. A negative number counts as 0.
  ActiveProperty<std::int32_t, Timer> Interval;
  Event<> Tick;

  bool IsRunning() const;
  bool HasPlace() const override { return false; }

 private:
  friend class Dispatcher;
  void WriteEnabled(bool enabled);
  void WriteInterval(std::int32_t milliseconds);
  void BeginWait();

  std::int64_t due_ = 0;         // the clock's time of the next tick
  std::uint64_t waitBegan_ = 0;  // order among all waits
};

}  // namespace quintara
