#include "scene/timer.h"

#include <algorithm>

#include "scene/form.h"
#include "scene/scene.h"

namespace quintara {

Timer::Timer(Container& container, const ObjectName& name, const TimerStart& start)
    : Object(Kind::Timer, container, name),
      Enabled(*this, start.enabled),
      Interval(*this, start.interval),
      start_(start) {
  form().scene().dispatcher().Add(*this);
}

Timer::~Timer() {
  form().scene().dispatcher().Remove(*this);
}

bool Timer::IsRunning() const {
  return Enabled && Interval > 0 && form().loaded();
}

void Timer::BeginWait() {
  form().scene().dispatcher().BeginWait(*this);
}

void Timer::WriteEnabled(bool enabled) {
  const bool turnedOn = enabled && !Enabled;
  Enabled.Keep(enabled, changeCount());
  if (turnedOn) BeginWait();
}

void Timer::WriteInterval(std::int32_t milliseconds) {
  Interval.Keep(std::max(milliseconds, 0), changeCount());
  BeginWait();
}

void Timer::Restore() {
  Enabled.Keep(start_.enabled, changeCount());
  Interval.Keep(start_.interval, changeCount());
}

}  // namespace quintara
