#include "art/temple.h"

#include "art/noise.h"

namespace quintara::art {
namespace {

// The window shows this picture narrower and much lower than it is painted: 750 by 694 become 737 by 600.
// These are the places of the list of names, and of the columns below the title, so that they fit when shown.
constexpr Point listTopLeft{171, 213};
constexpr Point listBottomRight{579, 403};
constexpr double columnTop = 170;
constexpr double columnFoot = 514;
constexpr double columns[] = {58, 122, 628, 692};
constexpr double columnRadius = 23;

// A band of stone across the front, brighter at its upper edge and darker at its lower.
void PaintCourse(Brush& brush, double left, double top, double right, double bottom, double light) {
  const Box box{static_cast<int>(left) - 1, static_cast<int>(top) - 1, static_cast<int>(right) + 2,
                static_cast<int>(bottom) + 2};
  brush.Fill(
      box,
      [=](Point p) {
        return BoxDistance(p, {left, top}, {right, bottom});
      },
      [=](Point p) {
        const double upper = Clamp01(1 - (p.y - top) / 2.5);
        const double lower = Clamp01(1 - (bottom - p.y) / 2.0);
        return Marble(p, light + 0.22 * upper - 0.40 * lower + 0.08 * (p.x - 375) / 375);
      });
}

// Coursed blocks, each a little different, behind the columns whose shadows fall upon them to the left.
Color WallColor(Point p) {
  const int row = static_cast<int>(std::floor((p.y - 152) / 30));
  const double shifted = p.x + (row % 2 == 0 ? 0 : 31);
  const int block = static_cast<int>(std::floor(shifted / 62));
  const double depth = p.y - 152 - row * 30;
  const double alongJoint = std::min(shifted - block * 62.0, (block + 1) * 62.0 - shifted);
  const double acrossJoint = std::min(depth, 30 - depth);
  double light = 0.50 + 0.10 * (Chance(block, row, 301) - 0.5) - 0.30 * (1 - SmoothStep(152, 205, p.y));
  light -= 0.22 * (1 - SmoothStep(0.4, 1.3, std::min(alongJoint, acrossJoint)));
  if (depth < 3) light += 0.08;  // Upper edges catch the sun.
  for (double column : columns) {
    light -= 0.20 * (1 - SmoothStep(15, 32, std::fabs(p.x - column + 44)));
  }
  return Tinted(Marble(p, light), Rgb(0xF4E2D2));
}

void PaintWall(Brush& brush) {
  brush.Fill(
      {88, 150, 664, 516},
      [](Point p) {
        return BoxDistance(p, {90, 150}, {662, 515});
      },
      WallColor);
}

// The frame in which the list of names hangs.
void PaintTablet(Brush& brush) {
  const auto box = [](double margin) {
    return [margin](Point p) {
      return BoxDistance(p, {listTopLeft.x - margin, listTopLeft.y - margin},
                         {listBottomRight.x + margin, listBottomRight.y + margin});
    };
  };
  const Box around{120, 170, 630, 460};
  brush.Fill(
      around,
      [&](Point p) {
        return box(21)({p.x + 9, p.y - 8}) - 3;
      },
      Rgb(0x2C2440), 0.42);
  const auto bevel = [](double margin, Color light, Color dark) {
    return [=](Point p) {
      const double right = listBottomRight.x + margin - p.x;
      const double left = p.x - listTopLeft.x + margin;
      const double top = p.y - listTopLeft.y + margin;
      const double bottom = listBottomRight.y + margin - p.y;
      const bool lit = std::min(right, top) < std::min(left, bottom);
      const double polish =
          0.12 * Fractal(p.x * 0.03, p.y * 0.4, 3, 302) + 0.10 * Sine((p.x + 2 * p.y) / 330);
      return Scaled(lit ? light : dark, 1 + polish);
    };
  };
  brush.Fill(around, box(21), bevel(21, Rgb(0xE8B850), Rgb(0x80501C)));
  brush.Fill(around, box(16), bevel(16, Rgb(0xA87428), Rgb(0xD8A040)));
  brush.Fill(around, box(7), bevel(7, Rgb(0x6C4014), Rgb(0xF8D478)));
  brush.Fill(around, box(4), Rgb(0x30303C));
  for (double x : {listTopLeft.x - 17.5, listBottomRight.x + 17.5}) {
    for (double y : {listTopLeft.y - 17.5, listBottomRight.y + 17.5}) {
      brush.Fill(
          around,
          [=](Point p) {
            return DiscDistance(p, {x, y}, 4.4);
          },
          [=](Point p) { return Mix(Rgb(0x68400C), Rgb(0xFFE898), Clamp01(0.5 + (p.x - x - p.y + y) / 9)); });
    }
  }
}

// Light on a fluted shaft at a share of its radius from the axis.
double ShaftLight(double side) {
  const double turned = side * (1 + 0.35 * side * side);
  const double round =
      0.64 + 0.46 * side - 0.35 * Square(std::max(side - 0.55, 0.0)) * 4 - 0.10 * side * side;
  const double flute = std::fabs(Sine(turned * 2.35 + 0.25));
  return round - 0.26 * (1 - SmoothStep(0.0, 0.55, flute)) + 0.07 * Sine(turned * 4.7 + 0.35);
}

void PaintColumn(Brush& brush, double x) {
  const Box box{static_cast<int>(x) - 40, static_cast<int>(columnTop) - 2, static_cast<int>(x) + 40,
                static_cast<int>(columnFoot) + 3};
  const auto radiusAt = [](double y) {
    const double up = (columnFoot - y) / (columnFoot - columnTop);
    return columnRadius * (1 - 0.15 * up * up);
  };
  brush.Fill(
      box,
      [=](Point p) {
        return std::max(std::fabs(p.x - x) - radiusAt(p.y), std::max(columnTop + 20 - p.y, p.y - 500));
      },
      [=](Point p) {
        const double shade = 0.30 * (1 - SmoothStep(columnTop + 20, columnTop + 40, p.y));
        return Marble(p, ShaftLight((p.x - x) / radiusAt(p.y)) - shade);
      });
  const auto roundPart = [&](double top, double bottom, double radius, double belly) {
    brush.Fill(
        box,
        [=](Point p) {
          const double middle = (top + bottom) / 2;
          const double bow = belly * (1 - Square((p.y - middle) / ((bottom - top) / 2)));
          return std::max(std::fabs(p.x - x) - radius - bow, std::fabs(p.y - middle) - (bottom - top) / 2);
        },
        [=](Point p) {
          const double side = (p.x - x) / (radius + belly);
          return Marble(p, 0.55 + 0.38 * side - 0.25 * (p.y - top) / (bottom - top));
        });
  };
  roundPart(columnTop + 17, columnTop + 21, 20.5, 1.5);
  roundPart(columnTop + 8, columnTop + 18, 22, 4);
  PaintCourse(brush, x - 29, columnTop, x + 29, columnTop + 9, 0.66);
  roundPart(494, 500, 23, 3);
  roundPart(499, 507, 25, 3.5);
  PaintCourse(brush, x - 30, 506, x + 30, 515, 0.62);
}

// Rosettes and a pair of lines on a plain ground, so that a title stays easy to read.
void PaintEntablature(Brush& brush) {
  PaintCourse(brush, 24, columnTop - 16, 726, columnTop + 1, 0.56);
  PaintCourse(brush, 22, columnTop - 21, 728, columnTop - 14, 0.74);
  PaintCourse(brush, 26, 68, 724, columnTop - 20, 0.80);
  for (double x : {56.0, 104.0, 646.0, 694.0}) {
    for (int petal = 0; petal < 8; ++petal) {
      const double px = x + 11 * Cosine(petal / 8.0);
      const double py = 109 + 11 * Sine(petal / 8.0);
      brush.Fill(
          {static_cast<int>(x) - 24, 85, static_cast<int>(x) + 24, 133},
          [=](Point p) {
            return DiscDistance(p, {px, py}, 5.4);
          },
          [=](Point p) { return Marble(p, 0.58 + (p.x - px - p.y + py) / 14); });
    }
    brush.Fill(
        {static_cast<int>(x) - 24, 85, static_cast<int>(x) + 24, 133},
        [=](Point p) {
          return DiscDistance(p, {x, 109}, 5.6);
        },
        [=](Point p) {
          return Mix(Rgb(0x906018), Rgb(0xFFE488), Clamp01(0.5 + (p.x - x - p.y + 109) / 12));
        });
  }
  PaintCourse(brush, 18, 62, 732, 69, 0.60);
  PaintCourse(brush, 12, 53, 738, 63, 0.86);
  for (int tooth = 0; tooth < 47; ++tooth) {
    PaintCourse(brush, 26 + tooth * 15, 63, 33 + tooth * 15, 69, 0.84);
  }
}

void PaintPediment(Brush& brush) {
  const Box box{0, 0, 750, 60};
  const std::vector<Point> outer = {{8, 54}, {375, 1}, {742, 54}};
  const std::vector<Point> inner = {{70, 54}, {375, 12}, {680, 54}};
  brush.Fill(
      box, [&](Point p) { return PolygonDistance(p, outer); },
      [](Point p) {
        const double depth = p.y - 1 - 53 * std::fabs(p.x - 375) / 367;
        return Marble(p, (p.x > 375 ? 0.92 : 0.64) - 0.30 * SmoothStep(3.5, 5.0, depth));
      });
  brush.Fill(
      box, [&](Point p) { return PolygonDistance(p, inner); },
      [](Point p) {
        const double depth = p.y - 12 - 42 * std::fabs(p.x - 375) / 305;
        return Tinted(Marble(p, 0.52 - 0.3 * (1 - SmoothStep(0, 9, depth))), Rgb(0xDCD4F4));
      });
  // A rising sun whose rays fill the field.
  for (int ray = -8; ray <= 8; ++ray) {
    const double lean = Sine(ray / 36.0);
    const double reach = 12 + 24 * Cosine(ray / 40.0) + std::fabs(lean) * 66;
    const Point tip{375 + reach * lean * 1.7, 54 - reach * Cosine(ray / 36.0) * 0.8};
    brush.Fill(
        box,
        [=](Point p) {
          return StrokeDistance(p, {375, 54}, tip, 2.6, 0.4);
        },
        [=](Point p) { return Mix(Rgb(0xA87428), Rgb(0xF8D880), Clamp01(0.6 + (p.x - 375) / 160)); });
  }
  brush.Fill(
      box,
      [](Point p) {
        return DiscDistance(p, {375, 55}, 17);
      },
      [](Point p) { return Mix(Rgb(0xA87020), Rgb(0xFFF0A8), Clamp01(0.5 + (p.x - 375 - p.y + 46) / 34)); });
}

void PaintSteps(Brush& brush) {
  constexpr double tops[] = {514, 546, 582, 622};
  for (int step = 0; step < 3; ++step) {
    const double left = 22 - 26 * step;
    const double right = 750 - left;
    const double top = tops[step];
    const double bottom = tops[step + 1];
    brush.Fill(
        {0, static_cast<int>(top) - 1, 750, static_cast<int>(bottom) + 2},
        [=](Point p) {
          return BoxDistance(p, {left, top}, {right, bottom});
        },
        [=](Point p) {
          const double tread = 0.30 * (1 - SmoothStep(8.5, 10.0, p.y - top));
          const double nose = p.y - top > 9 && p.y - top < 11 ? 0.12 : 0;
          const double foot = 0.25 * SmoothStep(bottom - 9, bottom, p.y);
          const int stone = static_cast<int>((p.x + 55 * step) / 92);
          const double joint = (p.x + 55 * step) - stone * 92 < 1.2 ? 0.18 : 0;
          return Marble(p, 0.56 + tread + nose - foot - joint + 0.06 * (Chance(stone, step, 303) - 0.5));
        });
  }
  // Paving which runs toward the viewer.
  brush.Fill(
      {0, 620, 750, 694}, [](Point p) { return 622 - p.y; },
      [](Point p) {
        const double depth = 30 / (p.y - 592);
        const double across = (p.x - 375) * depth / 62;
        const int row = static_cast<int>(std::floor(depth * 7));
        const int slab = static_cast<int>(std::floor(across + 0.5 * (row % 2)));
        const double u = across + 0.5 * (row % 2) - slab;
        const double v = depth * 7 - row;
        const double joint = std::min({u, 1 - u, v * 0.7, (1 - v) * 0.7}) < 0.022 ? 0.22 : 0;
        const double shade = 0.3 * (1 - SmoothStep(622, 640, p.y));
        return Tinted(Marble(p, 0.66 - joint - shade + 0.14 * (Chance(slab, row, 304) - 0.5)), Rgb(0xF0DCC4));
      });
}

}  // namespace

Color Marble(Point p, double light) {
  const double cloud = Fractal(p.x * 0.018, p.y * 0.026, 4, 305);
  const double vein = std::fabs(Noise(p.x * 0.016 + 0.9 * cloud, p.y * 0.022, 306));
  const double tone = light + 0.07 * cloud - 0.08 * (1 - SmoothStep(0.0, 0.07, vein));
  const Color lower = Mix(Rgb(0x484064), Rgb(0xB8A8A8), Clamp01(tone / 0.55));
  return Mix(lower, Rgb(0xFFF6E0), SmoothStep(0.45, 1.0, tone));
}

void PaintTemple(Brush& brush) {
  PaintWall(brush);
  PaintTablet(brush);
  for (double x : columns) PaintColumn(brush, x);
  PaintEntablature(brush);
  PaintPediment(brush);
  PaintSteps(brush);
}

}  // namespace quintara::art
