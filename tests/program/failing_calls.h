#pragma once

#include "tests/support/failing_disk.h"

// The calls by which files are read and written, from fopen to rename: in this test program each of them goes
// through here and fails when told to.

namespace quintara::failing_calls {

enum class Way {
  HalfDone,  // half of the bytes are written, a file that was to be closed is closed, else nothing is done
  Killed,    // the program is gone; half of the bytes may be written
};

// From now on until End.
void Begin(const Faults& faults, Way way);
// What was counted since Begin.
Faults End();

}  // namespace quintara::failing_calls
