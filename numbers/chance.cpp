#include "numbers/chance.h"

#include <algorithm>

namespace quintara {
namespace {

constexpr double largestBelowOne = 1 - 1.0 / (1 << 24);

// SplitMix64: small, and every bit of the seed matters at once.
std::uint64_t NextOf(std::uint64_t& state) {
  state += 0x9E3779B97F4A7C15;
  std::uint64_t z = state;
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
  return z ^ (z >> 31);
}

}  // namespace

Single Chance::Rnd() {
  if (queued_.empty()) {
    // 24 bits are what a single holds: more would round up to 1 now and then.
    return static_cast<double>(NextOf(state_) >> 40) / (1 << 24);
  }
  const Single value = queued_.front();
  queued_.pop_front();
  return value;
}

void Chance::Randomize(std::uint64_t seed) {
  state_ = NextOf(state_) ^ seed;
}

void Chance::Queue(double value) {
  queued_.push_back(std::clamp(value, 0.0, largestBelowOne));
}

}  // namespace quintara
