#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>

#include "scene/numbers.h"
#include "scene/single.h"

namespace quintara {

// The variables that a ballistic step works on, under whatever names their owner gives them. Metres, seconds,
// m/s and m/s²; x along the ground away from the gun, y upwards.
struct FlightVariables {
  Single& dragTerm;
  Single& ax;
  Single& ay;
  Single& vx;
  Single& vy;
  Single& speed;
  Single& x;
  Single& y;
  Single& time;
  const Single& dt;  // length of the step
};

// The first half of a step: drag, acceleration, velocity, and the way along the ground. `k` is the drag
// constant.
//
// The order of the lines is part of the result, and so is the rounding at each store. The drag term is built
// on vx alone and taken off both axes: this is the game's model of drag, not a slip.
inline void StepAlongGround(const FlightVariables& v, double k) {
  v.dragTerm = ((k * 0.001) * Sqr(v.vx * v.vx + v.vy * v.vy)) * v.vx;
  v.ax = -v.dragTerm;
  v.ay = -9.8 - v.dragTerm;
  v.vx = v.ax * v.dt + v.vx;
  v.vy = v.ay * v.dt + v.vy;
  v.speed = Sqr(v.vx * v.vx + v.vy * v.vy);
  v.x = (v.vx * v.dt + v.x) + v.dt * v.dt * (0.5 * v.ax);
}

// The second half: height and time.
inline void StepUpwards(const FlightVariables& v) {
  v.y = (v.vy * v.dt + v.y) + v.dt * v.dt * (0.5 * v.ay);
  v.time = v.time + v.dt;
}

inline void BallisticStep(const FlightVariables& v, double k) {
  StepAlongGround(v, k);
  StepUpwards(v);
}

// Whether a flight that is worked out at once goes on after so many steps: it has five steps to each m/s of
// its velocity. A velocity beyond what any scroll bar gives ends with the 16-bit counter.
inline bool StepsRemain(std::int16_t steps, Single velocity) {
  constexpr double most = std::numeric_limits<std::int16_t>::max();
  return steps < std::min<double>(Single(velocity * 5), most);
}

}  // namespace quintara
