#pragma once

#include <string_view>
#include <vector>

#include "art/canvas.h"

namespace quintara::art {

// Rows of text where '#' is a dot; for hand set letters and marks.
using Dots = std::vector<std::string_view>;

void DrawDots(Canvas& canvas, int left, int top, const Dots& dots, Color color);

// A proportional font seven dots high; it has the letters the pictures need.
int TextWidth(std::string_view text);
void DrawText(Canvas& canvas, int left, int top, std::string_view text, Color color);

}  // namespace quintara::art
