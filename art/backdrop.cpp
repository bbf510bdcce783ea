#include "art/noise.h"
#include "art/pictures.h"
#include "art/ranges.h"
#include "art/relief.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int width = 763;
constexpr int height = 158;
constexpr int fine = 2;

void PaintMeadows(Canvas& canvas) {
  for (int row = 118 * fine; row < canvas.height(); ++row) {
    const double y = (row + 0.5) / fine;
    const double depth = 16 / (y - 106);  // Fields shrink toward the mist.
    for (int column = 0; column < canvas.width(); ++column) {
      const double x = (column + 0.5) / fine;
      const double u = (x - 380) * depth;
      const double patch = Noise(u * 0.035 + 0.3 * depth, depth * 9, 71);
      const double tuft = Fractal(u * 0.3, depth * 60, 3, 72);
      Color color = Mix(Rgb(0x587840), Rgb(0xA8AC58), Clamp01(0.5 + patch));
      color = Scaled(color, 1 + 0.22 * tuft);
      color = Mix(color, Rgb(0xC0C8D8), 0.7 * (1 - SmoothStep(118, 146, y)));
      const double edge = 118.5 + 2 * Fractal(x * 0.02, 0.5, 3, 74);
      canvas.Blend(column, row, color, SmoothStep(edge - 1, edge + 6, y));
    }
  }
}

// Bushes and copses, each crown bright at the right and dark below.
void PaintCopses(Canvas& canvas) {
  Brush brush(canvas, fine);
  for (int row = 0; row < 150; ++row) {
    const double y = 123 + row * 0.24;
    const double depth = 16 / (y - 106);
    const double size = 0.5 + (y - 112) * 0.075;
    for (int column = 0; column < 500; ++column) {
      const Point foot{(column + Chance(column, row, 75)) * 1.6, y};
      const double u = (foot.x - 380) * depth;
      const double wood = Fractal(u * 0.05, depth * 14, 3, 73);
      if (wood < 0.17 ? Chance(column, row, 76) < 0.9985 : Chance(column, row, 76) < 0.8) continue;
      const Point crown{foot.x, foot.y - 0.55 * size};
      const double tall = size * (0.8 + 0.4 * Chance(column, row, 77));
      const Box box{static_cast<int>(foot.x - size) - 1, static_cast<int>(foot.y - 2 * size) - 1,
                    static_cast<int>(foot.x + size) + 2, static_cast<int>(foot.y + size) + 2};
      const double haze = 0.75 * (1 - SmoothStep(118, 150, y));
      brush.Fill(
          box, [&](Point p) { return EllipseDistance(p, crown, 0.62 * size, 0.62 * tall); },
          [&](Point p) {
            const double light = 0.42 + 0.5 * (p.x - crown.x) / size - 0.55 * (p.y - crown.y) / tall;
            return Mix(Mix(Rgb(0x1C3820), Rgb(0x84984C), Clamp01(light)), Rgb(0x9CB0B8), haze);
          });
    }
  }
}

// The near fields sink into mist of the view's own colour: below the picture there is only that.
void PaintMist(Canvas& canvas) {
  for (int row = 120 * fine; row < canvas.height(); ++row) {
    for (int column = 0; column < canvas.width(); ++column) {
      const double drift = 5 * Fractal(column * 0.006, row * 0.03, 3, 77);
      canvas.Blend(column, row, Rgb(0xC0C0FF), SmoothStep(124, 155, (row + 0.5) / fine + drift));
    }
  }
}

}  // namespace

Canvas PaintBackdrop() {
  Canvas large(width * fine, height * fine);
  for (int row = 0; row < height * fine; ++row) {
    for (int column = 0; column < width * fine; ++column) {
      large.Blend(column, row, SkyAt((column + 0.5) / fine, (row + 0.5) / fine, 92, 75), 1);
    }
  }
  PaintRange(large, fine, {66, 34, 58, Rgb(0xA0A4D8), Rgb(0xE4D4E0), 62, 81});
  PaintRange(large, fine, {84, 30, 46, Rgb(0x7C84BC), Rgb(0xDCC4C0), 63, 84});
  PaintRange(large, fine, {98, 24, 36, Rgb(0x5C6C98), Rgb(0xB8B09C), 0, 87});
  PaintRange(large, fine, {113, 15, 26, Rgb(0x44605C), Rgb(0x98A070), 0, 90});
  PaintMeadows(large);
  PaintCopses(large);
  PaintMist(large);
  return large.Reduced(fine);
}

}  // namespace quintara::art
