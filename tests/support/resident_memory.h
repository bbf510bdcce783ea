#pragma once

#include <fstream>

namespace quintara {

// What this process holds of the machine's memory now; 0 where the system does not tell it this way.
inline double ResidentMegabytes() {
  std::ifstream statm("/proc/self/statm");
  double all = 0, resident = 0;
  statm >> all >> resident;
  constexpr double pagesInMegabyte = 256;
  return resident / pagesInMegabyte;
}

}  // namespace quintara
