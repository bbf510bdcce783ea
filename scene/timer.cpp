#include "scene/timer.h"

#include <algorithm>

#include "scene/form.h"
#include "scene/scene.h"

namespace quintara {

Timer::Timer(Container& container, const ObjectName& name, const TimerStart& start)
    : Object(Kind::Timer, container, name),
      Enabled(properties(), start.enabled, *this, &Timer::WriteEnabled),
      Interval(properties(), start.interval, *this, &Timer::WriteInterval) {
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
  Enabled.Keep(enabled);
  if (turnedOn) BeginWait();
}

void Timer::WriteInterval(std::int32_t milliseconds) {
  Interval.Keep(std::max(milliseconds, 0));
  BeginWait();
}

}  // namespace quintara
