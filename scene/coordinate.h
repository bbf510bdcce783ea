#pragma once

#include "numbers/single.h"
#include "scene/property.h"
#include "scene/scale.h"

namespace quintara {

enum class Axis { Across, Down };

// One number of an object's place or size: a single, in the scale of the object's container. Writing it
// rounds.
//
// A change of scale moves nothing, it only changes the numbers. So that this stays true over any number of
// changes, a coordinate that was converted remembers the exact place it was converted from, until it is
// written anew.
class Coordinate final : public StoredProperty {
 public:
  // The scale is the container's own, in which the coordinate counts for as long as it lives.
  Coordinate(Properties& all, Axis axis, double startTwips, const Scale& scale)
      : StoredProperty(all), scale_(scale), axis_(axis), startTwips_(startTwips) {
    Place(startTwips_, scale_);
  }

  operator double() const { return value_; }

  Coordinate& operator=(double value) {
    const Single rounded = value;
    if (value_ == rounded) return *this;
    value_ = rounded;
    CountChange();
    return *this;
  }
  Coordinate& operator=(const Coordinate& other) { return *this = static_cast<double>(other.value_); }

  double Twips() const { return value_ == converted_ ? placedTwips_ : value_ * Unit(scale_); }
  // Counts the same place in the scale that the container takes next.
  void Convert(const Scale& next) { Place(Twips(), next); }

 private:
  double Unit(const Scale& scale) const { return axis_ == Axis::Across ? scale.unitAcross : scale.unitDown; }

  void Place(double twips, const Scale& scale) {
    *this = twips / Unit(scale);
    converted_ = value_;
    placedTwips_ = twips;
  }
  void Restore() override { Place(startTwips_, scale_); }

  Single value_;
  Single converted_;  // the value that stands for placedTwips_
  double placedTwips_ = 0;
  const Scale& scale_;
  const Axis axis_;
  const double startTwips_;
};

}  // namespace quintara
