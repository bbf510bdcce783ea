#include "art/thicket.h"

#include "art/noise.h"
#include "art/village.h"

namespace quintara::art {
namespace {

constexpr double spacing = 0.021;
constexpr double nearest = 1.44;
constexpr double farthest = 12.5;

struct Tree {
  Point root;  // In fine pixels.
  double size = 0;
  double distance = 0;
  double hue = 0;
  bool conifer = false;
};

// The crown's half width at a height in [0, 1] of the tree, for a tree one high.
double CrownWidth(const Tree& tree, double up) {
  if (up < 0.08) return 0.05;
  if (tree.conifer) return 0.30 * (1 - up) * (0.8 + 0.35 * (up * 5 - std::floor(up * 5) < 0.5 ? 1 : 0));
  return 0.42 * std::sqrt(Clamp01(1 - Square((up - 0.54) / 0.46)));
}

Color CrownColor(const Tree& tree, double side, double up) {
  const Color dark = tree.conifer ? Rgb(0x142C20) : Mix(Rgb(0x1C3818), Rgb(0x343C14), tree.hue);
  const Color bright = tree.conifer ? Mix(Rgb(0x4C7848), Rgb(0x68844C), tree.hue)
                                    : Mix(Rgb(0x6C9840), Rgb(0xA8A044), tree.hue * tree.hue);
  return Mix(dark, bright, Clamp01(0.08 + 0.5 * up + 0.42 * side));
}

void DrawShadow(Canvas& canvas, const Tree& tree) {
  const double length = 0.62 * tree.size;
  const double breadth = 0.16 * tree.size;
  const Box box{static_cast<int>(tree.root.x - 1.5 * length), static_cast<int>(tree.root.y - breadth - 1),
                static_cast<int>(tree.root.x + breadth + 2), static_cast<int>(tree.root.y + breadth + 2)};
  const Point middle{tree.root.x - 0.5 * length, tree.root.y};
  const auto ellipse = [&](Point p) { return EllipseDistance(p, middle, length, breadth + 0.5); };
  Paint(canvas, box, ellipse, Hazed(Rgb(0x18281C), tree.distance), 0.5);
}

void DrawTree(Canvas& canvas, const Tree& tree) {
  if (tree.size > 7) DrawShadow(canvas, tree);
  const int top = static_cast<int>(std::floor(tree.root.y - tree.size));
  const int left = static_cast<int>(std::floor(tree.root.x - 0.5 * tree.size));
  for (int row = std::max(top, 0); row <= static_cast<int>(tree.root.y); ++row) {
    const double up = (tree.root.y - row - 0.5) / tree.size;
    for (int column = left; column <= left + static_cast<int>(tree.size) + 1; ++column) {
      const double x = column + 0.5 - tree.root.x;
      const double ragged = 1 + 0.35 * (Chance(column, row, 271) - 0.5);
      const double halfWidth = CrownWidth(tree, up) * tree.size * ragged;
      const double coverage = Clamp01(halfWidth - std::fabs(x) + 0.5);
      if (coverage <= 0 || up > 1 || up < 0) continue;
      const double speckle = 0.5 * (Chance(column / 2, row / 2, 272) - 0.5);
      const Color color = CrownColor(tree, x / (halfWidth + 0.5) + speckle, up);
      canvas.Blend(column, row, Hazed(color, tree.distance), coverage);
    }
  }
}

// Hedges, lone trees of the meadows and the woods themselves.
bool Grows(Point place, double height, double river, double chance) {
  if (InVillage(place)) return false;
  if (height > 0.5 + 0.08 * (chance - 0.5)) return false;
  if (river < 1.6 * RiverHalfWidth(place.y)) return false;
  if (chance < Woods(place, height, river) * 0.93) return true;
  const Field field = FieldAt(place, height);
  if (field.tilled > 0.5)
    return field.edge < 0.012 && chance > 0.45 && Noise(place.x * 3, place.y * 3, 273) > -0.1;
  return chance > 0.987;
}

}  // namespace

Color Hazed(Color color, double z) {
  const double depth = std::max(z - 2.0, 0.0) / 17;
  const double haze = 1 - 1 / (1 + depth + 0.9 * depth * depth);
  return Mix(color, Mix(Rgb(0x9CACD0), Rgb(0xD4CCE8), SmoothStep(10, 40, z)), haze * 0.93);
}

void PlantTrees(Canvas& canvas, const Panorama& panorama) {
  Course river = River();
  Course road = Road();
  for (int row = static_cast<int>(farthest / spacing); row * spacing > nearest; --row) {
    river.Approach(row * spacing);
    road.Approach(row * spacing);
    const int reach = static_cast<int>(0.58 * row) + 2;
    for (int column = -reach; column <= reach; ++column) {
      const Point place{(column + 0.9 * Chance(column, row, 274)) * spacing,
                        (row + 0.9 * Chance(column, row, 275)) * spacing};
      Tree tree;
      double height = 0;
      if (!panorama.InSight(place, tree.root, height)) continue;
      if (road.Distance(place) < 0.018) continue;
      if (!Grows(place, height, river.Distance(place), Chance(column, row, 276))) continue;
      tree.distance = place.y;
      tree.hue =
          Clamp01(0.5 + 0.5 * Noise(place.x * 2, place.y * 2, 277) + 0.5 * (Chance(column, row, 278) - 0.5));
      tree.conifer = Chance(column, row, 279) < 0.25 + 3 * height;
      const double grown = (tree.conifer ? 0.030 : 0.024) * (0.75 + 0.5 * Chance(column, row, 280));
      tree.size = grown * valley_view::zoom * panorama.fine() / place.y;
      DrawTree(canvas, tree);
    }
  }
}

}  // namespace quintara::art
