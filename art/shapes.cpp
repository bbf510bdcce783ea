#include "art/shapes.h"

namespace quintara::art {

double EllipseDistance(Point p, Point center, double radiusX, double radiusY) {
  const double x = (p.x - center.x) / radiusX;
  const double y = (p.y - center.y) / radiusY;
  const double radius = Length(x, y);
  const double slope = Length(x / radiusX, y / radiusY);
  return slope > 0 ? radius * (radius - 1) / slope : -std::min(radiusX, radiusY);
}

double BoxDistance(Point p, Point corner, Point opposite) {
  const double x = std::max(corner.x - p.x, p.x - opposite.x);
  const double y = std::max(corner.y - p.y, p.y - opposite.y);
  return std::max(x, y);
}

double StrokeDistance(Point p, Point from, Point to, double startRadius, double endRadius) {
  const double dx = to.x - from.x;
  const double dy = to.y - from.y;
  const double span = dx * dx + dy * dy;
  const double t = span > 0 ? Clamp01(((p.x - from.x) * dx + (p.y - from.y) * dy) / span) : 0;
  return Length(p.x - from.x - t * dx, p.y - from.y - t * dy) - Lerp(startRadius, endRadius, t);
}

double PolygonDistance(Point p, const std::vector<Point>& corners) {
  double nearest = 1e9;
  bool inside = false;
  for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
    const Point& a = corners[i];
    const Point& b = corners[j];
    nearest = std::min(nearest, StrokeDistance(p, a, b, 0, 0));
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y)) inside = !inside;
  }
  return inside ? -nearest : nearest;
}

std::vector<Point> Smooth(const std::vector<Point>& path, int steps) {
  std::vector<Point> curve;
  const auto at = [&path](std::size_t i) { return path[std::min(i, path.size() - 1)]; };
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    const Point a = at(i == 0 ? 0 : i - 1);
    const Point b = at(i);
    const Point c = at(i + 1);
    const Point d = at(i + 2);
    for (int step = 0; step < steps; ++step) {
      const double t = static_cast<double>(step) / steps;
      const auto along = [t](double p, double q, double r, double s) {
        return q + 0.5 * t * (r - p + t * (2 * p - 5 * q + 4 * r - s + t * (3 * (q - r) + s - p)));
      };
      curve.push_back({along(a.x, b.x, c.x, d.x), along(a.y, b.y, c.y, d.y)});
    }
  }
  curve.push_back(path.back());
  return curve;
}

}  // namespace quintara::art
