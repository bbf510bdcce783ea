#include "art/village.h"

#include <iterator>

#include "art/noise.h"
#include "art/thicket.h"

namespace quintara::art {
namespace {

struct House {
  double x;  // Pixels of the picture.
  double y;
  double size;
};

// From the far ones to the near ones.
constexpr House houses[] = {
    {905, 236, 0.9}, {921, 239, 0.8}, {196, 246, 0.9}, {212, 250, 1.1}, {664, 318, 1.0}, {702, 322, 1.1},
    {640, 326, 0.9}, {681, 331, 1.1}, {728, 333, 1.0}, {655, 338, 1.1}, {752, 344, 0.9}, {706, 346, 1.1},
    {676, 352, 1.0}, {735, 358, 1.1}, {766, 366, 1.0}, {793, 374, 0.9}, {862, 516, 1.2}, {901, 527, 1.1}};
constexpr House church{716, 339, 1.35};

double WidthAt(const House& house) {
  return 0.036 * house.size * (house.y - valley_view::horizonY);
}

Box Around(double x, double y, double size) {
  return {static_cast<int>(x - 1.6 * size), static_cast<int>(y - 3 * size), static_cast<int>(x + 1.2 * size),
          static_cast<int>(y + size)};
}

// A gabled house of which the long side lies in the shade and the gable in the sun.
void DrawHouse(Brush& brush, const House& house, Color roof) {
  const double size = WidthAt(house);
  const double z = valley_view::zoom / (house.y - valley_view::horizonY);
  const auto at = [&](double x, double y) { return Point{house.x + x * size, house.y + y * size}; };
  const Box box = Around(house.x, house.y, size);
  const auto polygon = [&](std::vector<Point> corners, Color color, double opacity = 1) {
    brush.Fill(
        box, [&](Point p) { return PolygonDistance(p, corners); }, Hazed(color, z), opacity);
  };
  polygon({at(-0.5, 0), at(-1.2, -0.04), at(-1.1, -0.2), at(-0.3, -0.3), at(0.4, 0.05)}, Rgb(0x182818), 0.5);
  polygon({at(-0.5, 0), at(-0.5, -0.44), at(0.1, -0.40), at(0.1, 0.06)}, Rgb(0xA0949C));
  polygon({at(0.1, 0.06), at(0.1, -0.42), at(0.31, -0.82), at(0.52, -0.42), at(0.52, 0)}, Rgb(0xFCF0D4));
  polygon({at(-0.56, -0.40), at(-0.32, -0.84), at(0.31, -0.86), at(0.07, -0.36)}, roof);
  polygon({at(0.31, -0.86), at(0.25, -0.80), at(0.51, -0.36), at(0.58, -0.38)}, Scaled(roof, 1.25));
  polygon({at(-0.38, -0.10), at(-0.38, -0.26), at(-0.24, -0.25), at(-0.24, -0.09)}, Rgb(0x383040));
  polygon({at(-0.14, -0.08), at(-0.14, -0.24), at(0.0, -0.23), at(0.0, -0.07)}, Rgb(0x383040));
  polygon({at(0.25, 0.04), at(0.25, -0.26), at(0.38, -0.26), at(0.38, 0.03)}, Rgb(0x6C4830));
}

void DrawTower(Brush& brush, const House& house) {
  const double size = WidthAt(house);
  const auto at = [&](double x, double y) { return Point{house.x + x * size, house.y + y * size}; };
  const Box box = Around(house.x, house.y, size);
  const auto polygon = [&](std::vector<Point> corners, Color color) {
    brush.Fill(
        box, [&](Point p) { return PolygonDistance(p, corners); }, color);
  };
  polygon({at(-0.62, 0), at(-0.62, -1.15), at(-0.44, -1.12), at(-0.44, 0.03)}, Rgb(0xA0949C));
  polygon({at(-0.44, 0.03), at(-0.44, -1.12), at(-0.22, -1.15), at(-0.22, 0)}, Rgb(0xFCF0D4));
  polygon({at(-0.66, -1.12), at(-0.42, -2.15), at(-0.43, -1.08)}, Rgb(0x4C5078));
  polygon({at(-0.43, -1.08), at(-0.42, -2.15), at(-0.18, -1.12)}, Rgb(0x8088B0));
  polygon({at(-0.38, -0.82), at(-0.33, -1.0), at(-0.28, -0.82)}, Rgb(0x383040));
}

void DrawSheep(Brush& brush, const Panorama& panorama, Point flock, int count, int seed) {
  for (int i = 0; i < count; ++i) {
    const double x = flock.x + 46 * (Chance(i, seed, 291) - 0.5);
    const double y = flock.y + 22 * (i + 0.5) / count - 11;
    Point pixel;
    double height = 0;
    if (!panorama.InSight(valley_view::LevelGround(x, y), pixel, height)) continue;
    const Point at{pixel.x / panorama.fine(), pixel.y / panorama.fine()};
    const double size = 0.0042 * (y - valley_view::horizonY);
    const Box box{static_cast<int>(at.x) - 6, static_cast<int>(at.y) - 6, static_cast<int>(at.x) + 7,
                  static_cast<int>(at.y) + 5};
    const auto ellipse = [&](double dx, double dy, double width, double tall) {
      return [=](Point p) {
        return EllipseDistance(p, {at.x + dx * size, at.y + dy * size}, width * size, tall * size);
      };
    };
    const double head = Chance(i, seed, 292) < 0.5 ? -1 : 1;
    brush.Fill(box, ellipse(-0.5, 0.6, 1.3, 0.5), Rgb(0x203018), 0.6);
    brush.Fill(box, ellipse(0, 0, 1.15, 0.75), Rgb(0xE8E0D0));
    brush.Fill(box, ellipse(head * 1.1, -0.2, 0.4, 0.4), Rgb(0x282020));
  }
}

}  // namespace

bool InVillage(Point place) {
  const auto clear = [&](const House& house) {
    const Point site = valley_view::LevelGround(house.x, house.y - 4);
    return Length(place.x - site.x, (place.y - site.y) * 0.8) < 0.07;
  };
  return std::any_of(std::begin(houses), std::end(houses), clear) || clear(church);
}

void BuildVillage(Canvas& canvas, const Panorama& panorama) {
  Brush brush(canvas, panorama.fine());
  constexpr Color roofs[] = {Rgb(0xB04830), Rgb(0x98402C), Rgb(0xA85C3C), Rgb(0x8C4838)};
  bool churchStands = false;
  int number = 0;
  for (const House& house : houses) {
    if (!churchStands && house.y > church.y) {
      DrawHouse(brush, church, Rgb(0x7C4438));
      DrawTower(brush, church);
      churchStands = true;
    }
    DrawHouse(brush, house, roofs[Hash(number++, 0, 293) % 4]);
  }
  DrawSheep(brush, panorama, {600, 540}, 12, 1);
  DrawSheep(brush, panorama, {330, 590}, 7, 2);
  DrawSheep(brush, panorama, {905, 428}, 9, 3);
}

}  // namespace quintara::art
