#include "art/relief.h"

#include "art/noise.h"

namespace quintara::art {

double RockLight(double x, double y, double size, std::uint32_t seed) {
  const double u = x / size;
  const double v = y / size;
  const double bend = 0.35 * Noise(u * 0.7, v * 0.7, seed + 50);
  const auto height = [&](double du, double dv) { return Ridged(u + du + bend, v + dv - bend, 5, seed); };
  const double step = 0.035;
  const double acrossFall = height(-step, 0) - height(step, 0);
  const double downFall = height(0, step) - height(0, -step);
  return Clamp01(0.5 + 1.9 * acrossFall - 0.6 * downFall);
}

Color SkyAt(double x, double y, double horizon, std::uint32_t seed) {
  const double down = Clamp01(y / horizon);
  const Color air = Mix(viewBlue, Rgb(0xF0E4F0), down * down);
  const double billow = Fractal(x * 0.011 + 0.2 * Noise(x * 0.02, y * 0.06, seed + 9), y * 0.045, 5, seed);
  const double cloud = SmoothStep(0.05, 0.5, billow) * SmoothStep(0.12, 0.5, down);
  return Mix(air, Rgb(0xFFF8F4), 0.8 * cloud);
}

}  // namespace quintara::art
