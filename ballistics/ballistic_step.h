#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/numbers.h"
#include "numbers/single.h"

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

// The same variables held apart, for a flight that is worked out at once: what a form holds has to be stored
// after every line, these a processor keeps at hand.
struct FlightValues {
  Single dragTerm, ax, ay, vx, vy, speed, x, y, time, dt;

  explicit FlightValues(const FlightVariables& v)
      : dragTerm(v.dragTerm),
        ax(v.ax),
        ay(v.ay),
        vx(v.vx),
        vy(v.vy),
        speed(v.speed),
        x(v.x),
        y(v.y),
        time(v.time),
        dt(v.dt) {}

  // What the flight has come to; the length of its step stays.
  void StoreIn(const FlightVariables& v) const {
    v.dragTerm = dragTerm;
    v.ax = ax;
    v.ay = ay;
    v.vx = vx;
    v.vy = vy;
    v.speed = speed;
    v.x = x;
    v.y = y;
    v.time = time;
  }
};

// The first half of a step: drag, acceleration, velocity, and the way along the ground. `k` is the drag
// constant.
//
// The order of the lines is part of the result, and so is the rounding at each store. The drag term is built
// on vx alone and taken off both axes: this is the game's model of drag, not a slip.
template <typename Variables>
void StepAlongGround(Variables&& v, double k) {
  v.dragTerm = ((k * 0.001) * Sqr(v.vx * v.vx + v.vy * v.vy)) * v.vx;
  v.ax = -v.dragTerm;
  v.ay = -9.8 - v.dragTerm;
  v.vx = v.ax * v.dt + v.vx;
  v.vy = v.ay * v.dt + v.vy;
  v.speed = Sqr(v.vx * v.vx + v.vy * v.vy);
  v.x = (v.vx * v.dt + v.x) + v.dt * v.dt * (0.5 * v.ax);
}

// The second half: height and time.
template <typename Variables>
void StepUpwards(Variables&& v) {
  v.y = (v.vy * v.dt + v.y) + v.dt * v.dt * (0.5 * v.ay);
  v.time = v.time + v.dt;
}

template <typename Variables>
void BallisticStep(Variables&& v, double k) {
  StepAlongGround(v, k);
  StepUpwards(v);
}

// Where the counter of a flight that is worked out at once ends, which begins at 1: a flight has five steps
// to each m/s of its velocity. A velocity beyond what any scroll bar gives ends with the 16-bit counter.
inline std::int16_t EndOfSteps(Single velocity) {
  constexpr double most = std::numeric_limits<std::int16_t>::max();
  const double end = std::min<double>(Single(velocity * 5), most);
  return end > 0 ? static_cast<std::int16_t>(std::ceil(end)) : std::int16_t{0};
}

}  // namespace quintara
