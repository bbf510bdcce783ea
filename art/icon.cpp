#include "art/noise.h"
#include "art/pictures.h"
#include "art/relief.h"
#include "art/shapes.h"

namespace quintara::art {
namespace {

// The icon is drawn on a field of 32 by 32 and brought to the size wanted.
class IconPainter {
 public:
  explicit IconPainter(int size)
      : size_(size),
        fine_(size >= 256 ? 2 : 4),
        canvas_(size * fine_, size * fine_),
        unit_(size * fine_ / 32.0) {}

  Canvas Painted() {
    PaintSky();
    PaintPeak();
    PaintHills();
    PaintFlight();
    PaintMortarPiece();
    PaintFrame();
    return canvas_.Reduced(fine_);
  }

 private:
  Point Unit(Point p) const { return {p.x / unit_, p.y / unit_}; }

  // Everything stays within a square with round corners.
  static double Field(Point p, double margin) {
    const double x = std::max(std::fabs(p.x - 16) - 11.2, 0.0);
    const double y = std::max(std::fabs(p.y - 16) - 11.2, 0.0);
    return Length(x, y) - 4.3 + margin;
  }

  template <class Distance, class Shade>
  void Part(Distance distance, Shade shade) {
    Paint(
        canvas_, Whole(canvas_),
        [&](Point p) { return std::max(distance(Unit(p)), Field(Unit(p), 0)) * unit_; },
        [&](Point p) { return shade(Unit(p)); });
  }

  template <class Distance>
  void Part(Distance distance, Color color) {
    Part(distance, [color](Point) { return color; });
  }

  void PaintSky() {
    Part([](Point) { return -9.0; },
         [](Point p) {
           const double glow = Clamp01(1 - Length(p.x - 24, p.y - 19) / 18);
           const Color air = Mix(Rgb(0x3038A0), Rgb(0xC0C0FF), Clamp01((p.y - 1) / 19));
           return Mix(air, Rgb(0xFFD8A0), 0.75 * glow * glow);
         });
  }

  void PaintPeak() {
    const std::vector<Point> outline = {{-4, 28},    {3, 18},    {6.2, 10.6}, {8.5, 7},     {10, 5.6},
                                        {11.3, 6.9}, {14, 12.1}, {18, 18},    {21.5, 21.3}, {27, 28}};
    const auto shade = [](Point p) {
      const double crest = 10 + 0.6 * Sine(p.y * 0.21) + 0.25 * (p.y - 6) * Noise(p.y * 0.35, 0.5, 91);
      const double folds = RockLight(p.x + 0.35 * std::fabs(p.y - 6), p.y * 0.6, 7, 95) - 0.5;
      const double light = Clamp01(SmoothStep(-0.5, 0.5, p.x - crest) + 0.55 * folds);
      const double edge = 12.2 + 1.5 * std::fabs(Sine(p.x * 0.23)) + 0.8 * Noise(p.x, 2.5, 92) + 2 * folds;
      const Color snow = Mix(Rgb(0x8488D4), Rgb(0xFFFCF0), light);
      const Color rock = Mix(Rgb(0x483C74), Mix(Rgb(0xE8B894), Rgb(0xB88C78), (p.y - 12) / 14), light);
      return Mix(snow, rock, SmoothStep(-0.1, 0.1, p.y - edge));
    };
    Part([&](Point p) { return PolygonDistance(p, outline); }, shade);
  }

  void PaintHills() {
    const auto far = [](Point p) { return 21.5 - 1.3 * Sine(p.x * 0.045 + 0.55) - p.y; };
    Part(far, [](Point p) { return Mix(Rgb(0x7CA058), Rgb(0x3C6C48), (p.y - 20) / 6); });
    const auto near = [](Point p) { return 25.3 + 1.5 * Sine(p.x * 0.026 - 0.05) - p.y; };
    Part(near, [](Point p) {
      const double grain = 0.1 * Noise(p.x * 0.9, p.y * 1.6, 94);
      return Mix(Rgb(0x8CA83C), Rgb(0x2C4420), Clamp01((p.y - 24) / 7 + grain));
    });
  }

  // The shell's way from the muzzle up and down again, as beads.
  void PaintFlight() {
    const int beads = size_ >= 48 ? 9 : 5;
    for (int i = 1; i <= beads; ++i) {
      const double t = static_cast<double>(i) / (beads + 1);
      const Point at{Lerp(11, 26.8, t), 20 - 42 * t + 45 * t * t};
      const double radius = size_ >= 48 ? 0.62 : 0.85;
      Part([=](Point p) { return DiscDistance(p, at, radius + 0.3); }, Rgb(0x402008));
      Part([=](Point p) { return DiscDistance(p, at, radius); }, Rgb(0xFFE43C));
    }
    const Point hit{26.4, 23.6};
    Part([=](Point p) { return EllipseDistance(p, hit, 2.9, 2.2) + (p.y > 24.4 ? 9 : 0); }, Rgb(0x580808));
    Part([=](Point p) { return EllipseDistance(p, hit, 2.3, 1.6) + (p.y > 23.9 ? 9 : 0); },
         [=](Point p) { return Mix(Rgb(0xB01010), Rgb(0xFF6040), Clamp01(0.4 + (p.x - hit.x) * 0.3)); });
  }

  void PaintMortarPiece() {
    const Color black = Rgb(0x08080C);
    const Point breech{5.8, 25.6};
    const Point muzzle{11.2, 18.6};
    // Iron is brightest a little inside the barrel's sunny edge.
    const auto iron = [=](Point p) {
      const double across = (0.79 * (p.x - breech.x) + 0.61 * (p.y - breech.y)) / 2.2;
      return Mix(Rgb(0x10101C), Rgb(0xA0A8C8), Clamp01(0.85 - 1.3 * std::fabs(across - 0.35)));
    };
    const auto stand = [](Point p) { return Mix(Rgb(0x382414), Rgb(0xA07038), Clamp01((p.x - 4) / 8)); };
    const auto trapezium = [](double margin) {
      return [=](Point p) {
        return PolygonDistance(p, {{2.6, 28.2}, {4.6, 24}, {9.5, 24}, {11.8, 28.2}}) - margin;
      };
    };
    Part(trapezium(0.3), black);
    Part(trapezium(-0.2), stand);
    Part([=](Point p) { return StrokeDistance(p, breech, muzzle, 2.5, 1.8); }, black);
    Part([=](Point p) { return StrokeDistance(p, breech, muzzle, 2.0, 1.35); }, iron);
    Part([](Point p) { return StrokeDistance(p, {9.9, 17.4}, {12.7, 19.5}, 1.0, 1.0); }, black);
    Part(
        [](Point p) {
          return StrokeDistance(p, {9.9, 17.4}, {12.7, 19.5}, 0.55, 0.55);
        },
        [](Point p) { return Mix(Rgb(0x20202C), Rgb(0xA8B0D0), Clamp01((p.x - 9.6) / 3)); });
    Part([](Point p) { return DiscDistance(p, {7, 27.4}, 1.9); }, black);
    Part([](Point p) { return std::fabs(DiscDistance(p, {7, 27.4}, 1.25)) - 0.28; }, Rgb(0x906030));
    Part([](Point p) { return DiscDistance(p, {7, 27.4}, 0.6); }, Rgb(0xE0B048));
  }

  void PaintFrame() {
    const double line = size_ >= 64 ? 0.7 : 1.0;
    Part([=](Point p) { return -Field(p, line); },
         [](Point p) { return Mix(Rgb(0x181830), Rgb(0x585C98), Clamp01((p.x - p.y + 32) / 64)); });
  }

  int size_;
  int fine_;
  Canvas canvas_;
  double unit_;
};

}  // namespace

Canvas PaintIcon(int size) {
  return IconPainter(size).Painted();
}

}  // namespace quintara::art
