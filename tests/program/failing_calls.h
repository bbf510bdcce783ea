#pragma once

#include <algorithm>

// The calls by which files are read and written, from fopen to rename: in this test program each of them goes
// through here and fails when told to.

namespace quintara::failing_calls {

// Which of the calls that follow fail: those from `first` to `last`, counted from 1.
struct Faults {
  static constexpr int evermore = 1'000'000'000;

  int first = 0;
  int last = 0;
  int made = 0;

  bool NextFails() {
    ++made;
    return made >= first && made <= last;
  }
  int failed() const { return std::max(std::min(made, last) - first + 1, 0); }
};

enum class Way {
  HalfDone,  // half of the bytes are written, a file that was to be closed is closed, else nothing is done
  Killed,    // the program is gone; half of the bytes may be written
};

// From now on until End.
void Begin(const Faults& faults, Way way);
// What was counted since Begin.
Faults End();

}  // namespace quintara::failing_calls
