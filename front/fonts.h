#pragma once

#include <span>
#include <string_view>

#include "scene/looks.h"

// What stands in for the fonts that forms and documents name, on machines that don't have them.

namespace quintara {

// Fonts with the same widths, or at least of the same kind, for some that are named; the first that a machine
// has is taken.
struct FontStandIns {
  std::span<const std::string_view> named;
  std::span<const std::string_view> standIns;
};
std::span<const FontStandIns> StandInsForFonts();

enum class FontWeight { Normal, Bold, Black };
// The weight of a font's letters; that of some fonts lies in their name.
FontWeight WeightOf(std::string_view fontName, bool bold);
// Whether its letters slant; those of some fonts do by themselves, what stands in for them has to be told.
bool IsSlanted(const Font& font);

// The size of letters in pixels, at least 1; forms were laid out for 96 dots to the inch.
int ToPixelSize(double points);

}  // namespace quintara
