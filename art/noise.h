#pragma once

#include <cstdint>

namespace quintara::art {

// A well mixed number for a lattice point; the source of all chance in the pictures.
std::uint32_t Hash(int x, int y, std::uint32_t seed);

// The same as a number in [0, 1).
double Chance(int x, int y, std::uint32_t seed);

// Gradient noise, roughly in [-1, 1].
double Noise(double x, double y, std::uint32_t seed);

// Octaves of noise, each twice as fine and half as strong; roughly in [-1, 1].
double Fractal(double x, double y, int octaves, std::uint32_t seed);

// Octaves of folded noise with sharp crests, in [0, 1].
double Ridged(double x, double y, int octaves, std::uint32_t seed);

}  // namespace quintara::art
