#include "art/pixel_font.h"

#include <map>

namespace quintara::art {
namespace {

const std::map<char, Dots>& Glyphs() {
  static const std::map<char, Dots> glyphs = {
      {' ', {"..", "..", "..", "..", "..", "..", ".."}},
      {'1', {".#.", "##.", ".#.", ".#.", ".#.", ".#.", "###"}},
      {'2', {".##.", "#..#", "...#", "..#.", ".#..", "#...", "####"}},
      {'3', {".##.", "#..#", "...#", ".##.", "...#", "#..#", ".##."}},
      {'C', {".###", "#...", "#...", "#...", "#...", "#...", ".###"}},
      {'E', {"####", "#...", "#...", "###.", "#...", "#...", "####"}},
      {'F', {"####", "#...", "#...", "###.", "#...", "#...", "#..."}},
      {'I', {"#", "#", "#", "#", "#", "#", "#"}},
      {'L', {"#...", "#...", "#...", "#...", "#...", "#...", "####"}},
      {'M', {"#...#", "##.##", "#.#.#", "#.#.#", "#...#", "#...#", "#...#"}},
      {'R', {"###.", "#..#", "#..#", "###.", "#.#.", "#..#", "#..#"}},
      {'a', {"....", "....", ".##.", "...#", ".###", "#..#", ".###"}},
      {'b', {"#...", "#...", "###.", "#..#", "#..#", "#..#", "###."}},
      {'d', {"...#", "...#", ".###", "#..#", "#..#", "#..#", ".###"}},
      {'e', {"....", "....", ".##.", "#..#", "####", "#...", ".###"}},
      {'i', {"#", ".", "#", "#", "#", "#", "#"}},
      {'l', {"#", "#", "#", "#", "#", "#", "#"}},
      {'m', {".....", ".....", "####.", "#.#.#", "#.#.#", "#.#.#", "#.#.#"}},
      {'n', {"....", "....", "###.", "#..#", "#..#", "#..#", "#..#"}},
      {'o', {"....", "....", ".##.", "#..#", "#..#", "#..#", ".##."}},
      {'r', {"...", "...", "#.#", "##.", "#..", "#..", "#.."}},
      {'t', {".#.", ".#.", "###", ".#.", ".#.", ".#.", "..#"}},
  };
  return glyphs;
}

}  // namespace

void DrawDots(Canvas& canvas, int left, int top, const Dots& dots, Color color) {
  for (std::size_t row = 0; row < dots.size(); ++row) {
    for (std::size_t column = 0; column < dots[row].size(); ++column) {
      if (dots[row][column] != '#') continue;
      canvas.Blend(left + static_cast<int>(column), top + static_cast<int>(row), color, 1);
    }
  }
}

int TextWidth(std::string_view text) {
  int width = 0;
  for (char letter : text) width += static_cast<int>(Glyphs().at(letter).front().size()) + 1;
  return width - 1;
}

void DrawText(Canvas& canvas, int left, int top, std::string_view text, Color color) {
  for (char letter : text) {
    const Dots& glyph = Glyphs().at(letter);
    DrawDots(canvas, left, top, glyph, color);
    left += static_cast<int>(glyph.front().size()) + 1;
  }
}

}  // namespace quintara::art
