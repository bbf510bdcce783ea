#pragma once

#include "program/program.h"

namespace quintara::fuzz {

// What holds of the game at any moment between two inputs, as long as only the user acts on it.
void RequireGameOrder(Program& program);

}  // namespace quintara::fuzz
