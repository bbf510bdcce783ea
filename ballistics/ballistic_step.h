#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/numbers.h"
#include "numbers/single.h"
#include "numbers/trigonometry.h"

namespace quintara {

// A shell in flight: metres, seconds, m/s and m/s²; x along the ground away from the gun, y upwards. Who
// works a flight out at once does so on a copy, which a processor keeps at hand: what a form holds has to be
// stored after every line.
struct Flight {
  Single dragTerm, ax, ay;  // drag term and accelerations of the last step
  Single vx, vy, speed;     // velocity and, from the first step on, its length
  Single x, y;              // place
  Single time;              // since the launch
  Single dt;                // length of the step
};

// Puts a shell into the gun's mouth, with a velocity in m/s and an elevation in radians. The step, and what
// only a step works out, stay as they are.
inline void Launch(Flight& flight, Single velocity, Single elevation) {
  flight.vx = velocity * Cos(elevation);
  flight.vy = velocity * Sin(elevation);
  flight.x = 0;
  flight.y = 0;
  flight.time = 0;
}

// The first half of a step: drag, acceleration, velocity, and the way along the ground. `k` is the drag
// constant.
//
// The order of the lines is part of the result, and so is the rounding at each store. The drag term is built
// on vx alone and taken off both axes: this is the game's model of drag, not a slip.
inline void StepAlongGround(Flight& flight, double k) {
  flight.dragTerm = ((k * 0.001) * Sqr(flight.vx * flight.vx + flight.vy * flight.vy)) * flight.vx;
  flight.ax = -flight.dragTerm;
  flight.ay = -9.8 - flight.dragTerm;
  flight.vx = flight.ax * flight.dt + flight.vx;
  flight.vy = flight.ay * flight.dt + flight.vy;
  flight.speed = Sqr(flight.vx * flight.vx + flight.vy * flight.vy);
  flight.x = (flight.vx * flight.dt + flight.x) + flight.dt * flight.dt * (0.5 * flight.ax);
}

// The second half: height and time.
inline void StepUpwards(Flight& flight) {
  flight.y = (flight.vy * flight.dt + flight.y) + flight.dt * flight.dt * (0.5 * flight.ay);
  flight.time = flight.time + flight.dt;
}

inline void BallisticStep(Flight& flight, double k) {
  StepAlongGround(flight, k);
  StepUpwards(flight);
}

// Where the counter of a flight that is worked out at once ends, which begins at 1: a flight has five steps
// to each m/s of its velocity. A velocity beyond what any scroll bar gives ends with the 16-bit counter.
inline std::int16_t EndOfSteps(Single velocity) {
  constexpr double most = std::numeric_limits<std::int16_t>::max();
  const double end = std::min<double>(Single(velocity * 5), most);
  return end > 0 ? static_cast<std::int16_t>(std::ceil(end)) : std::int16_t{0};
}

}  // namespace quintara
