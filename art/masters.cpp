#include "art/noise.h"
#include "art/ornaments.h"
#include "art/pictures.h"
#include "art/ranges.h"
#include "art/relief.h"
#include "art/temple.h"

namespace quintara::art {
namespace {

constexpr int width = 750;
constexpr int height = 694;
constexpr int fine = 2;

void PaintCypress(Brush& brush, double x, double foot, double tall) {
  const Box box{static_cast<int>(x) - 40, static_cast<int>(foot - tall) - 4, static_cast<int>(x) + 40,
                static_cast<int>(foot) + 4};
  const auto shape = [=](Point p) {
    const double up = (foot - p.y) / tall;
    const double halfWidth =
        tall * 0.115 * std::sqrt(Clamp01(up * 9)) * std::sqrt(Clamp01(1 - up)) * (1.15 - 0.35 * up);
    return std::max(
        std::fabs(p.x - x) - halfWidth + 2.4 * Clamp01(5 - 5 * up) * Noise(p.x * 0.3, p.y * 0.14, 331),
        p.y - foot);
  };
  brush.Fill(box, shape, [=](Point p) {
    const double tuft = 0.5 * Fractal(p.x * 0.2, p.y * 0.09, 3, 332);
    return Mix(Rgb(0x10241C), Rgb(0x6C8C40), Clamp01(0.36 + (p.x - x) / (tall * 0.16) + tuft));
  });
}

void PaintCountry(Canvas& canvas) {
  for (int row = 0; row < canvas.height(); ++row) {
    for (int column = 0; column < canvas.width(); ++column) {
      canvas.Blend(column, row, SkyAt((column + 0.5) / fine, (row + 0.5) / fine, 400, 341), 1);
    }
  }
  PaintRange(canvas, fine, {330, 60, 90, Rgb(0x9094CC), Rgb(0xE4D0DC), 326, 342});
  PaintRange(canvas, fine, {392, 40, 60, Rgb(0x5C7074), Rgb(0xA8A880), 0, 345});
  PaintRange(canvas, fine, {440, 22, 40, Rgb(0x304C34), Rgb(0x88983C), 0, 348});
}

}  // namespace

Canvas PaintMasters() {
  Canvas large(width * fine, height * fine);
  PaintCountry(large);
  Brush brush(large, fine);
  PaintCypress(brush, 14, 560, 330);
  PaintCypress(brush, 737, 560, 372);
  PaintTemple(brush);
  PaintWreath(brush, {375, 469}, 42);
  // On the second step, so that the list does not cover their fire.
  PaintBrazier(brush, {226, 587});
  PaintBrazier(brush, {524, 587});
  return large.Reduced(fine);
}

}  // namespace quintara::art
