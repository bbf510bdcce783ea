#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace quintara::fuzz {

// Ends the run where something that has to hold does not; the fuzzer keeps the input that led here.
inline void Require(bool holds, std::string_view what, std::string_view where = {}) {
  if (holds) return;
  std::cerr << "does not hold: " << what << (where.empty() ? "" : ": ") << where << std::endl;
  std::abort();
}

}  // namespace quintara::fuzz
