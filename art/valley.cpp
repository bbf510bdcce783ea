#include "art/valley.h"

#include "art/noise.h"

namespace quintara::art {
namespace {

constexpr Point peak{-2.5356, 7.0};
constexpr double peakHeight = 1.2256;
constexpr double peakFoot = 2.3;
constexpr Point mortarLedge{-2.995, 6.93};
constexpr double ledgeHeight = 0.6766;

double PeakRadius(Point place) {
  return Length(place.x - peak.x, place.y - peak.y);
}

// A cone with a wide foot, furrowed by ribs which run down from the summit.
double PeakHeight(Point place) {
  const double radius = PeakRadius(place);
  if (radius > peakFoot) return 0;
  const double down = radius / peakFoot;
  const double cone = peakHeight * Square(1 - down);
  const double unitX = radius > 0 ? (place.x - peak.x) / radius : 0;
  const double unitZ = radius > 0 ? (place.y - peak.y) / radius : 0;
  const double twist = 0.5 * Noise(place.x * 1.3, place.y * 1.3, 201) +
                       0.16 * SmoothStep(0.1, 0.4, radius) * Fractal(place.x * 4.5, place.y * 4.5, 3, 204);
  const double ribs = Ridged(unitX * 1.9 + twist, unitZ * 1.9 + radius * 0.9 + twist, 4, 202) - 0.5;
  const double crags = Ridged(place.x * 3.4 + twist, place.y * 3.4, 5, 203) - 0.45;
  const double rough = SmoothStep(0.02, 0.5, radius) * (1 - SmoothStep(0.55, 1.0, down));
  const double height = cone + rough * (0.15 * ribs + 0.15 * crags);
  const double away = Length(place.x - mortarLedge.x, place.y - mortarLedge.y);
  return Lerp(ledgeHeight, height, SmoothStep(0.05, 0.16, away));
}

// One chain of mountains across the view, broken where the valley runs through.
double RangeHeight(Point place, double distance, double depth, double height, double gap,
                   std::uint32_t seed) {
  const double bow = distance + 1.5 * Noise(place.x / (distance * 0.35), 0.5, seed);
  const double belt = 1 - Square((place.y - bow) / depth);
  if (belt <= 0) return 0;
  const double size = distance * 0.16;
  const double folds = Ridged(place.x / size, place.y / size, 6, seed + 1);
  const double pass = SmoothStep(0.25, 1.0, std::fabs(place.x - 0.09 * distance) / gap);
  return height * belt * (0.2 + 1.05 * folds * folds) * (0.12 + 0.88 * pass);
}

}  // namespace

Course::Course(std::vector<Point> bends) {
  for (Point& bend : bends) bend = valley_view::LevelGround(bend.x, bend.y);
  path_ = Smooth(bends, 7);
}

void Course::Approach(double z) {
  near_.clear();
  for (std::size_t i = 1; i < path_.size(); ++i) {
    const double low = std::min(path_[i - 1].y, path_[i].y);
    const double high = std::max(path_[i - 1].y, path_[i].y);
    if (low - farOff < z && z < high + farOff) near_.push_back(i);
  }
}

double Course::Distance(Point place) const {
  double nearest = farOff;
  for (std::size_t i : near_)
    nearest = std::min(nearest, StrokeDistance(place, path_[i - 1], path_[i], 0, 0));
  return nearest;
}

Course River() {
  return Course({{560, 80},  {600, 88},  {640, 97},  {575, 108}, {600, 122}, {690, 138}, {748, 160},
                 {712, 190}, {690, 214}, {600, 232}, {470, 246}, {362, 270}, {330, 305}, {400, 345},
                 {520, 372}, {565, 412}, {470, 462}, {300, 508}, {190, 562}, {165, 641}, {150, 760}});
}

Course Road() {
  return Course({{1090, 560},
                 {980, 490},
                 {840, 440},
                 {740, 395},
                 {640, 352},
                 {560, 322},
                 {470, 312},
                 {380, 318},
                 {270, 300},
                 {180, 262},
                 {130, 225},
                 {60, 205},
                 {-60, 190}});
}

double LandHeight(Point place, double riverDistance) {
  const double x = place.x;
  const double z = place.y;
  const double swell = 0.030 * Fractal(x * 0.9, z * 0.9, 4, 211);
  const double hills = 0.26 * SmoothStep(6.5, 11, z) * SmoothStep(0.3, 1.1, riverDistance) *
                       Ridged(x * 0.42, z * 0.42, 4, 212);
  const double ranges =
      std::max({RangeHeight(place, 14, 3.4, 0.62, 3.0, 220), RangeHeight(place, 24, 6, 1.02, 3.2, 223),
                RangeHeight(place, 40, 9, 1.75, 2.0, 226)});
  const double bed = 1 - SmoothStep(0.7, 2.2, riverDistance / RiverHalfWidth(z));
  const double land = std::max(swell + hills + ranges, 0.0) + PeakHeight(place);
  return land * (1 - 0.8 * bed) - 0.004 * bed;
}

double Woods(Point place, double height, double riverDistance) {
  const double x = place.x;
  const double z = place.y;
  double wish = Fractal(x * 1.1, z * 1.1, 4, 231) - 0.02;
  wish += 0.30 * SmoothStep(0.05, 0.22, height);  // Slopes are left to the forest.
  wish += 0.85 * (1 - SmoothStep(0.5, 1.25, Length((x - 0.07) / 1.05, (z - 6.15) / 0.95)));
  wish -= 0.30 * SmoothStep(0.1, 1.0, x + 0.4 * (3.2 - z));  // Open country at the lower right.
  wish -= 0.35 * SmoothStep(0.40, 0.62, height + 0.1 * Noise(x * 4, z * 4, 232));
  wish += 0.22 * (1 - SmoothStep(1.5, 4.0, riverDistance / RiverHalfWidth(z)));
  const double dry = SmoothStep(1.5, 2.1, riverDistance / RiverHalfWidth(z));
  return SmoothStep(0.06, 0.16, wish) * dry;
}

Field FieldAt(Point place, double height) {
  const double bendX = place.x + 0.10 * Noise(place.x * 0.9, place.y * 0.9, 241);
  const double bendZ = place.y + 0.10 * Noise(place.x * 0.9, place.y * 0.9, 242);
  const double u = 0.94 * bendX + 0.34 * bendZ;
  const double v = -0.34 * bendX + 0.94 * bendZ;
  constexpr double length = 0.52;
  constexpr double breadth = 0.30;
  const int row = static_cast<int>(std::floor(v / breadth));
  const double shifted = u + length * Chance(row, 0, 243);
  const int column = static_cast<int>(std::floor(shifted / length));
  const double alongEdge = std::min(shifted - column * length, (column + 1) * length - shifted);
  const double acrossEdge = std::min(v - row * breadth, (row + 1) * breadth - v);
  Field field;
  field.edge = std::min(alongEdge, acrossEdge);
  field.kind = Chance(column, row, 244);
  field.furrow = Chance(column, row, 245) < 0.5 ? v : u;
  const double custom = Fractal(column * length * 0.5, row * breadth * 0.5, 3, 246);
  field.tilled = custom > -0.06 ? 1 - SmoothStep(0.05, 0.09, height) : 0;
  return field;
}

}  // namespace quintara::art
