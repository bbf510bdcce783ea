#pragma once

#include <vector>

#include "art/canvas.h"

namespace quintara::art {

struct Point {
  double x = 0;
  double y = 0;
};

// Signed distances from shapes: below zero inside. They are what the painting functions take.

inline double DiscDistance(Point p, Point center, double radius) {
  return Length(p.x - center.x, p.y - center.y) - radius;
}

// Exact on the axes and near enough elsewhere for soft edges.
double EllipseDistance(Point p, Point center, double radiusX, double radiusY);
double BoxDistance(Point p, Point corner, Point opposite);
// A straight stroke with round ends whose half thickness runs from startRadius to endRadius.
double StrokeDistance(Point p, Point from, Point to, double startRadius, double endRadius);
double PolygonDistance(Point p, const std::vector<Point>& corners);

// Points of a smooth curve through the given ones.
std::vector<Point> Smooth(const std::vector<Point>& path, int steps);

struct Box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

inline Box Whole(const Canvas& canvas) {
  return {0, 0, canvas.width(), canvas.height()};
}

// Paints where distance(p) is below zero, with an edge one pixel soft, in the colour shade(p).
template <class Distance, class Shade>
void Paint(Canvas& canvas, Box box, Distance distance, Shade shade, double opacity = 1) {
  for (int y = std::max(box.top, 0); y < std::min(box.bottom, canvas.height()); ++y) {
    for (int x = std::max(box.left, 0); x < std::min(box.right, canvas.width()); ++x) {
      const Point p{x + 0.5, y + 0.5};
      const double coverage = Clamp01(0.5 - distance(p)) * opacity;
      if (coverage > 0) canvas.Blend(x, y, shade(p), coverage);
    }
  }
}

template <class Distance>
void Paint(Canvas& canvas, Box box, Distance distance, Color color, double opacity = 1) {
  Paint(
      canvas, box, distance, [color](Point) { return color; }, opacity);
}

// Paints in the measures of a picture upon a canvas which is a number of times larger, to be reduced at the
// end.
class Brush {
 public:
  Brush(Canvas& canvas, double scale) : canvas_(canvas), scale_(scale) {}

  template <class Distance, class Shade>
  void Fill(Box box, Distance distance, Shade shade, double opacity = 1) {
    const auto part = [this](int edge) { return static_cast<int>(edge * scale_); };
    const Box fine{part(box.left), part(box.top), part(box.right), part(box.bottom)};
    Paint(
        canvas_, fine, [&](Point p) { return distance(To(p)) * scale_; },
        [&](Point p) { return shade(To(p)); }, opacity);
  }

  template <class Distance>
  void Fill(Box box, Distance distance, Color color, double opacity = 1) {
    Fill(
        box, distance, [color](Point) { return color; }, opacity);
  }

 private:
  Point To(Point p) const { return {p.x / scale_, p.y / scale_}; }

  Canvas& canvas_;
  double scale_;
};

}  // namespace quintara::art
