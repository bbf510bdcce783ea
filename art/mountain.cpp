#include <array>

#include "art/ground.h"
#include "art/noise.h"
#include "art/pictures.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

constexpr int width = 293;
constexpr int height = 288;
constexpr int fine = 2;

constexpr std::array<Point, 4> leftEdge = {{{112, 34}, {94, 57}, {51, 200}, {0, 288}}};
constexpr std::array<Point, 4> rightEdge = {{{112, 34}, {132, 57}, {234, 214}, {293, 288}}};

double EdgeAt(const std::array<Point, 4>& edge, double y) {
  for (std::size_t i = 1; i < edge.size(); ++i) {
    if (y <= edge[i].y) {
      return Lerp(edge[i - 1].x, edge[i].x, (y - edge[i - 1].y) / (edge[i].y - edge[i - 1].y));
    }
  }
  return edge.back().x;
}

double LeftEdge(double y) {
  return EdgeAt(leftEdge, y) + 1.3 * Fractal(y * 0.12, 2.5, 3, 15);
}
double RightEdge(double y) {
  return EdgeAt(rightEdge, y) + 1.3 * Fractal(y * 0.12, 8.5, 3, 16);
}

// Where a place lies between the left and the right edge, from -1 to 1; lines of equal side run up to the
// summit.
double SideAt(double x, double y) {
  const double left = LeftEdge(y);
  const double right = RightEdge(y);
  return right > left ? (2 * x - left - right) / (right - left) : 0;
}

// Height of the ribs which run down from the summit and branch on their way.
double Ribs(double side, double y) {
  const double down = (y - 34) / 254;
  const double wander = 0.30 * Noise(side * 2 + 5, down * 4, 13) + 0.10 * Noise(side * 7, down * 12, 14);
  const double main = Ridged((side + wander) * 1.25 + 0.45, down * 1.5, 2, 17);
  const double branches = Ridged((side + wander) * 3.4, down * 5.0, 4, 18);
  return main * (0.45 + 0.9 * down) + 0.55 * branches * (0.25 + down);
}

// What the sun at the right leaves bright.
double Facing(double x, double y) {
  const double side = SideAt(x, y);
  const double reach = 2.2 / (0.5 * (RightEdge(y) - LeftEdge(y)) + 8);
  const double fall = (Ribs(side - reach, y) - Ribs(side + reach, y)) / reach;
  return SmoothStep(-0.55, 0.75, 0.42 * (side + 0.12) + 0.20 * fall);
}

// Snow, bare rock and meadows follow each other down the slope.
Color SlopeColor(double x, double y) {
  const double side = SideAt(x, y);
  const double facing = Facing(x, y);
  const double grain = Fractal(x * 0.20, y * 0.17, 4, 12);
  const double ledges = Noise(x * 0.012, y * 0.16 + 1.5 * Noise(x * 0.03, y * 0.03, 19), 20);
  Color rock = Mix(Rgb(0x443C64), Rgb(0xE4C09C), Clamp01(facing * 0.92 + 0.16 * grain));
  rock = Mix(rock, Mix(Rgb(0x54405C), Rgb(0xC08C74), facing), 0.5 * SmoothStep(0.0, 0.35, ledges));
  const double gentle = Lerp(facing, 0.55, 0.5 * SmoothStep(210, 280, y));
  Color meadow = Mix(Rgb(0x38563C), Rgb(0xA8AC5C), Clamp01(0.12 + 0.66 * gentle + 0.28 * grain));
  meadow = Mix(meadow, Scaled(meadowEdge, 1 + 0.12 * grain), SmoothStep(262, 287, y));
  const Color snow = Mix(Rgb(0x8488D0), Rgb(0xFFFCF4), SmoothStep(0.08, 0.62, facing));
  const double ragged = 46 * (Ribs(side, y) - 0.55) + 12 * grain;
  const Color slope = Mix(rock, meadow, SmoothStep(176, 204, y - 0.8 * ragged));
  return Mix(snow, slope, SmoothStep(92, 97, y + ragged));
}

void PaintSlopes(Canvas& canvas) {
  for (int row = 34 * fine; row < height * fine; ++row) {
    const double y = (row + 0.5) / fine;
    for (int column = 0; column < width * fine; ++column) {
      const double x = (column + 0.5) / fine;
      const double inside = std::min(x - LeftEdge(y), RightEdge(y) - x) * fine;
      if (inside > -0.5) canvas.Blend(column, row, SlopeColor(x, y), inside + 0.5);
    }
  }
}

void PaintFir(Brush& brush, Point root, double tall, double light) {
  const Box box{static_cast<int>(root.x - tall), static_cast<int>(root.y - tall) - 1,
                static_cast<int>(root.x + tall), static_cast<int>(root.y) + 2};
  brush.Fill(
      box,
      [=](Point p) {
        const double up = (root.y - p.y) / tall;
        const double tier = up * 3 - std::floor(up * 3);
        return std::max({std::fabs(p.x - root.x) - tall * 0.34 * (1 - up) * (1.15 - 0.4 * tier), -up * tall,
                         (up - 1) * tall});
      },
      [=](Point p) {
        const double sun =
            Clamp01(0.25 + 0.55 * light + 0.9 * (p.x - root.x) / tall + 0.25 * (root.y - p.y) / tall);
        return Mix(Rgb(0x142C2C), Rgb(0x749048), sun);
      });
}

// A forest which is thick below the rock and opens toward the foot.
void PaintForest(Brush& brush) {
  for (int row = 0; row < 42; ++row) {
    for (int column = 0; column < 98; ++column) {
      const Point root{(column + Chance(column, row, 21)) * 3, 164 + (row + Chance(column, row, 22)) * 3};
      if (root.y > 287 || root.x < LeftEdge(root.y) + 6 || root.x > RightEdge(root.y) - 6) continue;
      const double ribs = Ribs(SideAt(root.x, root.y), root.y);
      double wish =
          SmoothStep(170, 200, root.y - 40 * (ribs - 0.55)) * (1 - 0.95 * SmoothStep(228, 268, root.y));
      wish += 0.9 * Fractal(root.x * 0.035, root.y * 0.035, 3, 23);
      if (Chance(column, row, 24) > wish) continue;
      PaintFir(brush, root, 5.5 + 3.5 * Chance(column, row, 25), Facing(root.x, root.y));
    }
  }
}

}  // namespace

Canvas PaintMountain() {
  Canvas large(width * fine, height * fine, viewBlue);
  PaintSlopes(large);
  Brush brush(large, fine);
  PaintForest(brush);
  return large.Reduced(fine);
}

}  // namespace quintara::art
