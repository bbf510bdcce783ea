#pragma once

#include <cstddef>
#include <fstream>

#ifdef __linux__
#include <unistd.h>
#endif

namespace quintara {

// What this process holds of the machine's memory now, in bytes; 0 where the system does not tell it this
// way.
inline std::size_t ResidentMemory() {
#ifdef __linux__
  std::size_t all = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> all >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
#else
  return 0;
#endif
}

inline double ResidentMegabytes() {
  constexpr double bytesInMegabyte = 1 << 20;
  return static_cast<double>(ResidentMemory()) / bytesInMegabyte;
}

}  // namespace quintara
