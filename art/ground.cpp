#include "art/ground.h"

#include "art/noise.h"
#include "art/pictures.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int width = 1018;
constexpr int height = 46;
constexpr int fine = 2;

// Where the mountain stands on the meadow, as a share; its box reaches a little below the picture's upper
// edge, so that grass has to fill the picture there.
double MountainFoot(double x) {
  return SmoothStep(-60, 46, x) * (1 - SmoothStep(288, 420, x));
}

double FarEdge(double x) {
  const double swell = 4.2 * Fractal(x / 130, 0.5, 3, 21) + 1.6 * Fractal(x / 22, 3.5, 3, 22);
  return Lerp(8 + swell, -1.5, MountainFoot(x));
}

// The meadow as one sees it along the ground: pale and smooth at its far edge, with blades near by.
Color MeadowColor(double x, double y, double depth) {
  const double near = Clamp01(depth / 34);
  const double dry = SmoothStep(-0.25, 0.4, Fractal(x / 85, y / 9, 3, 34));
  const double tufts = Fractal(x * 0.22, y * 0.45, 3, 33);
  const double blades = Fractal(x * 0.8, y * 0.22, 2, 35);
  const Color far = Mix(meadowEdge, Rgb(0x94985C), 0.6 * dry);
  const Color grass = Mix(Rgb(0x4C7030), Rgb(0x7C8440), dry);
  const double light = 1 + (0.10 + 0.16 * near) * tufts + 0.30 * near * blades;
  return Scaled(Mix(far, grass, SmoothStep(0.0, 0.62, near)), light);
}

// Beaten earth with two ruts.
Color TrackColor(double x, double y) {
  const double crumbs = Fractal(x * 0.30, y * 0.55, 3, 27);
  const double worn = Fractal(x / 48, y / 4, 3, 26);
  const double bend = 0.9 * Noise(x / 70, 4.5, 25);
  double rut = 0;
  for (double middle : {33.4, 40.2}) rut = std::max(rut, 1 - std::fabs(y - middle - bend) / 1.5);
  const Color earth = Mix(Rgb(0x6C5030), Rgb(0xA88858), Clamp01(0.52 + 0.35 * worn + 0.35 * crumbs));
  return Scaled(earth, 1 - 0.22 * Clamp01(rut + 0.3 * crumbs));
}

// How far the track covers the meadow; grass grows over both its edges in tufts.
double TrackShare(double x, double y) {
  const double upper = 30.6 + 1.5 * Noise(x / 60, 0.5, 28) + 1.3 * Noise(x * 0.45, 1.5, 29);
  const double lower = 44.2 + 1.2 * Noise(x / 60, 2.5, 30) + 1.5 * Noise(x * 0.45, 3.5, 31);
  return SmoothStep(upper - 0.7, upper + 0.7, y) * (1 - SmoothStep(lower - 0.7, lower + 0.7, y));
}

// Bushes stand in loose groups on the farther half, so that targets and bursts keep a calm background.
void PlantBushes(Brush& brush) {
  for (int row = 0; row < 12; ++row) {
    for (int column = 0; column < width / 3; ++column) {
      const double x = (column + Chance(column, row, 41)) * 3;
      const double depth = 1.2 + row * 1.25 + Chance(column, row, 42);
      const double thicket = Fractal(x / 45, row * 0.22, 3, 43);
      if (Chance(column, row, 44) > SmoothStep(0.12, 0.42, thicket) * 0.75 + 0.004) continue;
      const double size = (1.1 + 0.09 * depth) * (0.8 + 0.6 * Chance(column, row, 45));
      const Point crown{x, std::max(FarEdge(x), 1 + 2.2 * size) + depth - 0.8 * size};
      const Box box{static_cast<int>(x - 2 * size) - 1, static_cast<int>(crown.y - size) - 2,
                    static_cast<int>(x + 2 * size) + 2, static_cast<int>(crown.y + 2 * size) + 2};
      const Point shadow{crown.x - 0.7 * size, crown.y + 0.75 * size};
      brush.Fill(
          box, [=](Point p) { return EllipseDistance(p, shadow, 1.25 * size, 0.35 * size); }, Rgb(0x20341C),
          0.55);
      brush.Fill(
          box, [=](Point p) { return EllipseDistance(p, crown, 0.95 * size, size); },
          [=](Point p) {
            const double light = 0.36 + 0.45 * (p.x - crown.x) / size - 0.45 * (p.y - crown.y) / size;
            const Color leaves = Mix(Rgb(0x1C3820), Rgb(0x88A04C), Clamp01(light));
            return Mix(leaves, meadowEdge, 0.35 * Clamp01(1 - depth / 12));
          });
    }
  }
}

}  // namespace

Canvas PaintGround() {
  Canvas large(width * fine, height * fine);
  for (int column = 0; column < width * fine; ++column) {
    const double x = (column + 0.5) / fine;
    const double edge = FarEdge(x);
    for (int row = 0; row < height * fine; ++row) {
      const double y = (row + 0.5) / fine;
      const double depth = y - edge;
      if (depth < -1) continue;
      const Color color = Mix(MeadowColor(x, y, depth), TrackColor(x, y), TrackShare(x, y));
      large.Blend(column, row, color, depth * fine + 0.5);
    }
  }
  Brush brush(large, fine);
  PlantBushes(brush);
  return large.Reduced(fine);
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
