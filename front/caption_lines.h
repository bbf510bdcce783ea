#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quintara {

// How wide a text is, in pixels, in the font that it is wanted in.
using TextMeasure = std::function<double(std::string_view)>;

// The lines of a caption that is to fit a width in pixels. A line ends where the next word doesn't fit. Of a
// run of blanks at that place as many stay at the end of the line as fit, and the others begin the next one:
// captions use such runs to bring about their breaks and to centre what follows. Blanks that would push a
// word out of a line of its own are left out.
std::vector<std::string> CaptionLines(std::string_view caption, const TextMeasure& measure, double width);

struct FittedCaption {
  std::vector<std::string> lines;
  int stretch = 100;  // how wide the letters are to be, in percent of their own width
};

// The fonts of a machine may be a little wider than those that the forms were laid out for. A caption that
// its label has no room for is set a little tighter, if that helps. Lengths are in pixels.
FittedCaption FitCaption(std::string_view caption, const TextMeasure& measure, double lineHeight,
                         double width, double height);

}  // namespace quintara
