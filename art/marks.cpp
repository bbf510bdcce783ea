#include "art/pictures.h"
#include "art/pixel_font.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int fine = 4;  // Curved marks are painted this many times larger and then reduced.

constexpr Color lemon = Rgb(0xFFE83C);
constexpr Color gold = Rgb(0xE0A800);
constexpr Color darkGold = Rgb(0x483400);

// Columns of the shaft of the arrow at the scales' origin, which goes on from one picture to another.
constexpr int shaftLeft = 2;
constexpr int shaftRight = 5;

Point Unscaled(Point p) {
  return {p.x / fine, p.y / fine};
}

}  // namespace

Canvas PaintFireButton() {
  Canvas large(28 * fine, 28 * fine);
  const Point center{14.0 * fine, 14.0 * fine};
  const auto disc = [&](double radius) {
    return [=](Point p) { return DiscDistance(p, center, radius * fine); };
  };
  const auto slope = [&](Point p) { return ((p.x - center.x) - (p.y - center.y)) / (28.0 * fine); };
  Paint(large, Whole(large), disc(13.8), Rgb(0x380404));
  const auto rim = [&](Point p) { return Mix(Rgb(0x6C0808), Rgb(0xFF8460), Clamp01(0.5 + 0.8 * slope(p))); };
  Paint(large, Whole(large), disc(12.9), rim);
  const auto dome = [&](Point p) { return Mix(Rgb(0x98040C), Rgb(0xF4281C), Clamp01(0.6 + 0.8 * slope(p))); };
  Paint(large, Whole(large), disc(11.5), dome);
  const auto highlight = [&](Point p) {
    const double bow = std::fabs(DiscDistance(p, center, 9.4 * fine)) - 1.1 * fine;
    const double sector = Length(p.x - center.x - 6.4 * fine, p.y - center.y + 6.8 * fine) - 5.0 * fine;
    return std::max(bow, sector);
  };
  Paint(large, Whole(large), highlight, Rgb(0xFFF050), 0.9);
  Canvas canvas = large.Reduced(fine);
  const int left = 14 - TextWidth("FIRE") / 2;
  DrawText(canvas, left + 1, 12, "FIRE", Rgb(0x580000));
  DrawText(canvas, left, 11, "FIRE", Rgb(0xFFFFFF));
  return canvas;
}

Canvas PaintMortarTag() {
  Canvas canvas(41, 13);
  const Color ink = Rgb(0x000000);
  DrawText(canvas, 1, 1, "Mortar", ink);
  DrawDots(canvas, 30, 1,
           {"....##....", "....##....", "....##....", "....##....", "....##....", "....##....", "#...##...#",
            "##..##..##", ".##.##.##.", "..######..", "...####..."},
           ink);
  return canvas;
}

// An arrow which rises from the picture of the mortar below and turns to the place where it stands: zero.
Canvas PaintOriginMark() {
  Canvas large(14 * fine, 24 * fine);
  const auto arrow = [](double margin) {
    return [margin](Point fineP) {
      const Point p = Unscaled(fineP);
      const double shaft = BoxDistance(p, {shaftLeft, 5}, {shaftRight, 40});
      const double arm = BoxDistance(p, {shaftLeft, 5}, {9, 8});
      const double head = PolygonDistance(p, {{7.6, 2.6}, {12.6, 6.5}, {7.6, 10.4}});
      return (std::min({shaft, arm, head}) - margin) * fine;
    };
  };
  Paint(large, Whole(large), arrow(1), darkGold);
  const auto shade = [](Point p) { return Mix(lemon, gold, Clamp01(Unscaled(p).y / 26)); };
  Paint(large, Whole(large), arrow(0), shade);
  return large.Reduced(fine);
}

// The lowest piece of the arrow's shaft, which lies on the console.
Canvas PaintStrip() {
  Canvas canvas(17, 4);
  for (int x = shaftLeft - 1; x <= shaftRight; ++x) {
    const bool rim = x < shaftLeft || x >= shaftRight;
    for (int y = 0; y < 4; ++y) canvas.Blend(x, y, rim ? darkGold : gold, 1);
  }
  return canvas;
}

}  // namespace quintara::art
