#include "art/noise.h"

#include <cmath>

#include "art/numeric.h"

namespace quintara::art {
namespace {

double Gradient(int x, int y, double dx, double dy, std::uint32_t seed) {
  const std::uint32_t hash = Hash(x, y, seed);
  const double gx = static_cast<double>(hash & 0xFFFF) / 32767.5 - 1;
  const double gy = static_cast<double>(hash >> 16) / 32767.5 - 1;
  return gx * dx + gy * dy;
}

double Fade(double t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

// Turning the lattice between octaves hides its direction.
void NextOctave(double& x, double& y) {
  const double turned = 1.6 * x - 1.2 * y + 17.3;
  y = 1.2 * x + 1.6 * y - 9.1;
  x = turned;
}

}  // namespace

std::uint32_t Hash(int x, int y, std::uint32_t seed) {
  std::uint32_t h = seed * 0x9E3779B1u + 0x7F4A7C15u;
  h = (h ^ static_cast<std::uint32_t>(x)) * 0x85EBCA6Bu;
  h ^= h >> 15;
  h = (h ^ static_cast<std::uint32_t>(y)) * 0xC2B2AE35u;
  h ^= h >> 13;
  h *= 0x27D4EB2Fu;
  return h ^ (h >> 16);
}

double Chance(int x, int y, std::uint32_t seed) {
  return static_cast<double>(Hash(x, y, seed)) / 4294967296.0;
}

double Noise(double x, double y, std::uint32_t seed) {
  const double left = std::floor(x);
  const double top = std::floor(y);
  const int column = static_cast<int>(left);
  const int row = static_cast<int>(top);
  const double dx = x - left;
  const double dy = y - top;
  const double u = Fade(dx);
  const double upper =
      Lerp(Gradient(column, row, dx, dy, seed), Gradient(column + 1, row, dx - 1, dy, seed), u);
  const double lower = Lerp(Gradient(column, row + 1, dx, dy - 1, seed),
                            Gradient(column + 1, row + 1, dx - 1, dy - 1, seed), u);
  return 1.6 * Lerp(upper, lower, Fade(dy));
}

double Fractal(double x, double y, int octaves, std::uint32_t seed) {
  double sum = 0;
  double strength = 0.55;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * Noise(x, y, seed + static_cast<std::uint32_t>(octave));
    strength *= 0.5;
    NextOctave(x, y);
  }
  return sum;
}

double Ridged(double x, double y, int octaves, std::uint32_t seed) {
  double sum = 0;
  double total = 0;
  double strength = 1;
  double carry = 1;
  for (int octave = 0; octave < octaves; ++octave) {
    const double fold = Clamp01(1 - std::fabs(Noise(x, y, seed + static_cast<std::uint32_t>(octave))));
    sum += strength * carry * fold * fold;
    total += strength;
    carry = fold;
    strength *= 0.5;
    NextOctave(x, y);
  }
  return sum / total;
}

}  // namespace quintara::art
