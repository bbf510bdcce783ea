#pragma once

#include <vector>

#include "art/shapes.h"

namespace quintara::art {

// The landscape is a model in kilometres: x to the right, z away from the viewer, who stands one kilometre
// up.
namespace valley_view {
inline constexpr double zoom = 900;  // Pixels which a kilometre covers at a kilometre's distance.
inline constexpr double centerX = 510;
inline constexpr double horizonY = 46;

inline double ScreenX(double x, double z) {
  return centerX + zoom * x / z;
}
inline double ScreenY(double height, double z) {
  return horizonY + zoom * (1 - height) / z;
}
// The place of level ground behind a pixel, as a point (x, z).
inline Point LevelGround(double screenX, double screenY) {
  const double z = zoom / (screenY - horizonY);
  return {(screenX - centerX) * z / zoom, z};
}
}  // namespace valley_view

// Points of the ground hold x and, in y, the distance z.

// A winding line on the ground which can tell how far away it is, up to a limit.
class Course {
 public:
  static constexpr double farOff = 1.2;

  // The bends are given as pixels of the picture.
  explicit Course(std::vector<Point> bends);
  // Chooses the pieces which count for all places at a distance z; call it before Distance.
  void Approach(double z);
  double Distance(Point place) const;

 private:
  std::vector<Point> path_;
  std::vector<std::size_t> near_;
};

Course River();
Course Road();

inline double RiverHalfWidth(double z) {
  return 0.02 + 0.006 * z;
}

// Height of the land; the river's distance lets its bed be dug.
double LandHeight(Point place, double riverDistance);

// How thickly a place is wooded, in [0, 1].
double Woods(Point place, double height, double riverDistance);

// Tilled land in strips between hedges.
struct Field {
  double tilled = 0;  // In [0, 1].
  double edge = 0;    // Distance from the nearest hedge in kilometres.
  double furrow = 0;  // A coordinate across the furrows.
  double kind = 0;    // A chance in [0, 1) for each field.
};
Field FieldAt(Point place, double height);

}  // namespace quintara::art
