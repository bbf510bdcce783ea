#include "art/pictures.h"
#include "art/pixel_font.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int fine = 4;  // Curved marks are painted this many times larger and then reduced.

constexpr Color lemon = Rgb(0xFFE83C);
constexpr Color gold = Rgb(0xE0A800);

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

Canvas PaintOriginMark() {
  Canvas large(14 * fine, 24 * fine);
  std::vector<Point> bend = {{11, 5.2},   {8.6, 2.8}, {5, 3.0},    {2.9, 5.8},  {4.2, 9.4}, {7.2, 12},
                             {9.8, 14.6}, {11, 18},   {9.2, 20.8}, {5.4, 21.3}, {2.8, 18.8}};
  for (Point& p : bend) p = {p.x * fine, p.y * fine};
  const std::vector<Point> curve = Smooth(bend, 6);
  const auto stroke = [&](double halfWidth) {
    return [&curve, halfWidth](Point p) { return PathDistance(p, curve) - halfWidth * fine; };
  };
  Paint(large, Whole(large), stroke(2.4), Rgb(0x5C4400));
  const auto shade = [](Point p) { return Mix(lemon, gold, Clamp01(0.5 - (Unscaled(p).x - 7) / 14)); };
  Paint(large, Whole(large), stroke(1.5), shade);
  return large.Reduced(fine);
}

Canvas PaintStrip() {
  Canvas canvas(17, 4);
  for (int x = 0; x < 17; ++x) {
    canvas.Blend(x, 0, Rgb(0xFFF890), 1);
    canvas.Blend(x, 1, lemon, 1);
    canvas.Blend(x, 2, Mix(lemon, gold, 0.5), 1);
    canvas.Blend(x, 3, Rgb(0x9C7400), 1);
  }
  return canvas;
}

}  // namespace quintara::art
