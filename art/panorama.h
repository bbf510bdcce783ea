#pragma once

#include <vector>

#include "art/valley.h"

namespace quintara::art {

// What a ray through the picture meets.
struct Ground {
  bool sky = true;
  Point place;
  double height = 0;
  double river = 0;
  double road = 0;
  double sunlight = 0;  // From the slope alone; 1 on level ground.
  double shadow = 0;    // In [0, 1], thrown by higher ground.
};

// The valley's ground sampled in fans of rays: a column of samples lies behind each column of the picture, so
// whatever is nearer and higher hides the rest of its column.
class Panorama {
 public:
  // The picture's size in fine pixels, of which `fine` make one of the final picture.
  Panorama(int width, int height, int fine);

  int width() const { return width_; }
  int height() const { return height_; }
  int fine() const { return fine_; }
  Ground At(int column, int row) const;
  // Whether something standing on the ground at a place is in sight; gives the place's fine pixel and height.
  bool InSight(Point place, Point& pixel, double& height) const;

 private:
  struct Sample {
    float height = 0;
    float river = 0;
    float road = 0;
    float shadow = 0;
  };

  const Sample& At(int column, std::size_t depth) const {
    return samples_[depth * static_cast<std::size_t>(width_) + static_cast<std::size_t>(column)];
  }
  double XAt(double column, double z) const;
  void Survey();
  void CastShadows();
  void FindVisible();
  void FindVisible(int column);

  int width_;
  int height_;
  int fine_;
  std::vector<double> depths_;
  std::vector<Sample> samples_;
  std::vector<float>
      seen_;  // For each fine pixel the number, with fraction, of the depth met, or below zero.
};

}  // namespace quintara::art
