#include "art/noise.h"
#include "art/pictures.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int width = 1018;
constexpr int height = 46;

double TurfTop(double x) {
  const double swell = 4.2 * Fractal(x / 130, 0.5, 3, 21) + 1.6 * Fractal(x / 22, 3.5, 3, 22);
  const double blade =
      2.6 * Square(Chance(static_cast<int>(x), 0, 23)) * SmoothStep(-0.3, 0.3, Noise(x / 40, 1.5, 24));
  // The mountain's box ends two pixels below the strip's upper edge, so the turf rises to meet its foot.
  const double foot = SmoothStep(30, 56, x) * (1 - SmoothStep(280, 316, x));
  return 8 - 6.4 * foot + (1 - 0.85 * foot) * (swell - blade);
}

Color Soil(double x, double y, double depth) {
  const double bedding = Fractal(x / 60, y / 5 + 0.4 * Noise(x / 90, 2.5, 25), 4, 26);
  const double crumbs = Fractal(x * 0.28, y * 0.3, 3, 27);
  Color color = Mix(Rgb(0x54381C), Rgb(0xA87C48), Clamp01(0.5 + 0.55 * bedding + 0.4 * crumbs));
  color = Mix(color, Rgb(0x342418), 0.6 * SmoothStep(14, 40, depth));
  return color;
}

// Stones lie one in some of the cells of a grid, shaded like little balls.
Color WithStones(Color soil, double x, double y) {
  const int column = static_cast<int>(std::floor(x / 13));
  const int row = static_cast<int>(std::floor(y / 8));
  if (row < 2 || Chance(column, row, 28) > 0.38) return soil;
  const double radius = 1.6 + 2.6 * Chance(column, row, 29);
  const double centerX = column * 13 + 4.5 + 4 * Chance(column, row, 30);
  const double centerY = row * 8 + 3.5 + Chance(column, row, 31);
  const double dx = (x - centerX) / (radius * 1.35);
  const double dy = (y - centerY) / (radius * 0.85);
  const double away = Length(dx, dy) + 0.2 * Noise(x * 0.5, y * 0.5, 32);
  if (away > 1.15) return soil;
  const Color stone = Mix(Rgb(0x443C38), Rgb(0xC8BCA4), Clamp01(0.45 + 0.4 * dx - 0.55 * dy));
  return away > 0.95 ? Scaled(soil, 0.6) : stone;
}

Color Turf(double x, double y, double depth) {
  const double blades = Fractal(x * 0.55, y * 0.16, 2, 33);
  const double dry = SmoothStep(-0.1, 0.4, Fractal(x / 70, 5.5, 3, 34));
  const Color dark = Mix(Rgb(0x28481C), Rgb(0x5C5424), dry);
  const Color bright = Mix(Rgb(0x88B044), Rgb(0xC8B458), dry);
  return Mix(dark, bright, Clamp01(0.75 + 0.7 * blades - depth * 0.11));
}

}  // namespace

Canvas PaintGround() {
  Canvas canvas(width, height);
  for (int x = 0; x < width; ++x) {
    const double top = TurfTop(x + 0.5);
    const double rootDepth = 6.5 + 3.5 * Fractal(x * 0.21, 1.5, 3, 35);
    for (int y = 0; y < height; ++y) {
      const double depth = y + 0.5 - top;
      if (depth < -0.5) continue;
      const Color soil = WithStones(Soil(x, y, depth), x, y);
      const double bare = SmoothStep(rootDepth - 1, rootDepth + 1, depth);
      canvas.Blend(x, y, Mix(Turf(x, y, depth), soil, bare), depth + 0.5);
    }
  }
  return canvas;
}

Canvas PaintBenchGround() {
  Canvas canvas(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      // A plank of a workbench: a bright worn edge, long grain, and a dark foot.
      const double grain = Fractal(x / 75.0, y * 0.33 + 1.1 * Noise(x / 160.0, 0.5, 36), 4, 37);
      const double rings = Sine(y * 0.055 + 1.7 * Noise(x / 190.0, y / 34.0, 38));
      Color wood = Mix(Rgb(0x6C4018), Rgb(0xD09C58), Clamp01(0.52 + 0.42 * grain + 0.16 * rings));
      if (y < 5) wood = Mix(Rgb(0xF0D094), wood, y / 6.0);
      wood = Mix(wood, Rgb(0x30180C), 0.75 * SmoothStep(30, 46, y));
      const bool joint = x % 254 == 253 && y > 4;
      canvas.Blend(x, y, joint ? Scaled(wood, 0.45) : wood, 1);
    }
  }
  return canvas;
}

}  // namespace quintara::art
