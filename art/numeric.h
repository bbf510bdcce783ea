#pragma once

#include <algorithm>
#include <cmath>

namespace quintara::art {

// Only exactly rounded operations (+ - * / sqrt floor) are used anywhere in the art program, so that every
// compiler makes the same bytes; the few curves it needs are polynomials of its own.

inline double Clamp01(double value) {
  return std::clamp(value, 0.0, 1.0);
}

inline double Lerp(double from, double to, double t) {
  return from + (to - from) * t;
}

inline double SmoothStep(double from, double to, double value) {
  const double t = Clamp01((value - from) / (to - from));
  return t * t * (3 - 2 * t);
}

inline double Square(double value) {
  return value * value;
}

inline double Length(double x, double y) {
  return std::sqrt(x * x + y * y);
}

// Sine of an angle given in turns.
inline double Sine(double turns) {
  double t = turns - std::floor(turns + 0.5);
  if (t > 0.25) t = 0.5 - t;
  if (t < -0.25) t = -0.5 - t;
  const double x = t * 6.283185307179586;
  const double s = x * x;
  return x * (1 + s * (-1.0 / 6 + s * (1.0 / 120 + s * (-1.0 / 5040 + s * (1.0 / 362880 - s / 39916800)))));
}

inline double Cosine(double turns) {
  return Sine(turns + 0.25);
}

}  // namespace quintara::art
