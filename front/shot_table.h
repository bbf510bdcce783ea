#pragma once

#include <array>
#include <span>
#include <string>

#include "front/shots.h"

// The shots of a game as a table.

namespace quintara {

using ShotFields = std::array<std::string, 10>;

// What stands above the columns, with units.
ShotFields ShotHeadings();
// What stands in a shot's line. Fields that nobody knows yet, or ever will, are empty.
ShotFields FieldsOf(const Shot& shot);
// The headings and a line for each shot: with commas a file that every spreadsheet reads, with tabs what is
// put on the clipboard for one.
std::string TableOf(std::span<const Shot> shots, char separator = ',');

}  // namespace quintara
