#include "art/panorama.h"

namespace quintara::art {
namespace {

// The direction to the sun; it stands a little behind the viewer.
constexpr double sunX = 0.78;
constexpr double sunUp = 0.52;
constexpr double sunZ = -0.35;

std::vector<double> Depths(int fine) {
  std::vector<double> depths;
  for (double z = 1.42; z < 52;) {
    depths.push_back(z);
    // Level ground wants steps finer than the rows; beyond the peak, the steep ranges can do with coarser
    // ones.
    z += std::min(z * z / (valley_view::zoom * fine * 0.9), z * (z < 8.5 ? 0.0018 : 0.0045));
  }
  return depths;
}

}  // namespace

Panorama::Panorama(int width, int height, int fine)
    : width_(width * fine),
      height_(height * fine),
      fine_(fine),
      depths_(Depths(fine)),
      samples_(depths_.size() * static_cast<std::size_t>(width_)),
      seen_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), -1.0f) {
  Survey();
  CastShadows();
  FindVisible();
}

double Panorama::XAt(double column, double z) const {
  return ((column + 0.5) / fine_ - valley_view::centerX) * z / valley_view::zoom;
}

void Panorama::Survey() {
  Course river = River();
  Course road = Road();
  Sample* sample = samples_.data();
  for (double z : depths_) {
    river.Approach(z);
    road.Approach(z);
    for (int column = 0; column < width_; ++column, ++sample) {
      const Point place{XAt(column, z), z};
      const double riverDistance = river.Distance(place);
      sample->river = static_cast<float>(riverDistance);
      sample->road = static_cast<float>(road.Distance(place));
      sample->height = static_cast<float>(LandHeight(place, riverDistance));
    }
  }
}

// The sun's rays sink from right to left, nearly along the rows.
void Panorama::CastShadows() {
  for (std::size_t depth = 0; depth < depths_.size(); ++depth) {
    const double fall = sunUp / sunX * (XAt(1, depths_[depth]) - XAt(0, depths_[depth]));
    double edge = -1;
    for (int column = width_ - 1; column >= 0; --column) {
      Sample& sample = samples_[depth * static_cast<std::size_t>(width_) + static_cast<std::size_t>(column)];
      edge = std::max(edge - fall, static_cast<double>(sample.height));
      sample.shadow = static_cast<float>(SmoothStep(0.0, 0.03, edge - static_cast<double>(sample.height)));
    }
  }
}

void Panorama::FindVisible() {
  for (int column = 0; column < width_; ++column) FindVisible(column);
}

void Panorama::FindVisible(int column) {
  int top = height_;
  double lastY = 1e9;
  for (std::size_t depth = 0; depth < depths_.size(); ++depth) {
    const double height = static_cast<double>(At(column, depth).height);
    const double y = valley_view::ScreenY(height, depths_[depth]) * fine_;
    while (top > 0 && top - 0.5 > y) {
      --top;
      const double back = lastY > y ? Clamp01((top + 0.5 - y) / (lastY - y)) : 0;
      seen_[static_cast<std::size_t>(top) * static_cast<std::size_t>(width_) +
            static_cast<std::size_t>(column)] =
          static_cast<float>(std::max(static_cast<double>(depth) - back, 0.0));
    }
    lastY = y;
  }
}

Ground Panorama::At(int column, int row) const {
  const double seen =
      static_cast<double>(seen_[static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
                                static_cast<std::size_t>(column)]);
  Ground ground;
  if (seen < 0) return ground;
  const std::size_t near = std::min(static_cast<std::size_t>(seen), depths_.size() - 2);
  const double t = seen - static_cast<double>(near);
  const Sample& a = At(column, near);
  const Sample& b = At(column, near + 1);
  const auto between = [t](float p, float q) {
    return Lerp(static_cast<double>(p), static_cast<double>(q), t);
  };
  const double z = Lerp(depths_[near], depths_[near + 1], t);
  ground.sky = false;
  ground.place = {XAt(column, z), z};
  ground.height = between(a.height, b.height);
  ground.river = between(a.river, b.river);
  ground.road = between(a.road, b.road);
  ground.shadow = between(a.shadow, b.shadow);
  const int left = std::max(column - 1, 0);
  const int right = std::min(column + 1, width_ - 1);
  const double rise =
      static_cast<double>(At(right, near).height) - static_cast<double>(At(left, near).height);
  const double slopeX = rise / (XAt(right, z) - XAt(left, z));
  const double slopeZ =
      (static_cast<double>(b.height) - static_cast<double>(a.height)) / (depths_[near + 1] - depths_[near]);
  const double facing =
      (sunUp - sunX * slopeX - sunZ * slopeZ) / std::sqrt(1 + slopeX * slopeX + slopeZ * slopeZ);
  ground.sunlight = std::max(facing, 0.0) / sunUp;
  return ground;
}

bool Panorama::InSight(Point place, Point& pixel, double& height) const {
  pixel.x = valley_view::ScreenX(place.x, place.y) * fine_;
  const auto after = std::lower_bound(depths_.begin(), depths_.end(), place.y);
  if (after == depths_.end() || pixel.x < 0 || pixel.x >= width_) return false;
  const int column = static_cast<int>(pixel.x);
  const std::size_t depth = static_cast<std::size_t>(after - depths_.begin());
  height = static_cast<double>(At(column, depth).height);
  pixel.y = valley_view::ScreenY(height, place.y) * fine_;
  const int row = static_cast<int>(pixel.y);
  if (row < 0) return false;
  if (row >= height_) return true;
  const double seen =
      static_cast<double>(seen_[static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
                                static_cast<std::size_t>(column)]);
  return seen < 0 || depths_[static_cast<std::size_t>(seen)] > place.y * 0.985 - 0.02;
}

}  // namespace quintara::art
