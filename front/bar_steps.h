#pragma once

#include <cstdlib>

#include "scene/bars.h"

// A bar's widget counts steps from 0 at the top or left end, since few toolkits can have the larger number
// there.

namespace quintara {

template <typename Bar>
int StepsOf(const Bar& bar) {
  return std::abs(static_cast<int>(bar.Max) - bar.Min);
}

// How many steps its value is from Min.
template <typename Bar>
int StepsFromMin(const Bar& bar) {
  return std::abs(static_cast<int>(bar.Value.Get()) - bar.Min);
}

// The value so many steps from Min.
template <typename Bar>
int ValueAt(const Bar& bar, int steps) {
  return bar.Min <= bar.Max ? bar.Min + steps : bar.Min - steps;
}

}  // namespace quintara
