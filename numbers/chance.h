#pragma once

#include <cstdint>
#include <deque>

#include "numbers/single.h"

namespace quintara {

// The random source. Values can be queued from outside, so that a game can be played again draw by draw.
class Chance {
 public:
  // The next value, at least 0 and below 1: the oldest queued one, or one drawn where none is queued.
  Single Rnd();

  // Starts drawing afresh from a seed. Two calls with the same seed do not repeat each other's draws.
  void Randomize(std::uint64_t seed);

  // Queues the value that Rnd returns once those queued before it are used up. A value outside [0, 1) is
  // brought to the nearest bound.
  void Queue(double value);

 private:
  std::uint64_t state_ = 0x9E3779B97F4A7C15;
  std::deque<Single> queued_;
};

}  // namespace quintara
