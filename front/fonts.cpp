#include "front/fonts.h"

#include <algorithm>
#include <cmath>

namespace quintara {
namespace {

constexpr std::string_view scriptFont = "Mural Script";

constexpr std::string_view sansNames[] = {"Arial", "MS Sans Serif", "Arial Black", "Tahoma", "Verdana"};
constexpr std::string_view serifNames[] = {"Times New Roman", "MS Serif"};
constexpr std::string_view monoNames[] = {"Courier New", "Fixedsys"};
constexpr std::string_view scriptNames[] = {scriptFont};

constexpr std::string_view sans[] = {"Liberation Sans", "Arimo", "Helvetica", "DejaVu Sans"};
constexpr std::string_view serif[] = {"Liberation Serif", "Tinos", "Times", "DejaVu Serif"};
constexpr std::string_view mono[] = {"Liberation Mono", "Cousine", "Courier", "DejaVu Sans Mono"};
constexpr std::string_view script[] = {
    "Z003",  "URW Chancery L", "Apple Chancery", "Monotype Corsiva", "Liberation Serif",
    "Tinos", "Times",          "DejaVu Serif"};

constexpr FontStandIns standIns[] = {
    {sansNames, sans}, {serifNames, serif}, {monoNames, mono}, {scriptNames, script}};

}  // namespace

std::span<const FontStandIns> StandInsForFonts() {
  return standIns;
}

FontWeight WeightOf(std::string_view fontName, bool bold) {
  if (fontName == "Arial Black") return FontWeight::Black;
  return bold ? FontWeight::Bold : FontWeight::Normal;
}

bool IsSlanted(const Font& font) {
  return font.italic || font.name == scriptFont;
}

int ToPixelSize(double points) {
  return std::max(static_cast<int>(std::lround(points * 96 / 72)), 1);
}

}  // namespace quintara
