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
class Coordinate {
 public:
  Coordinate(ChangeCount& changes, Axis axis, double twips, const Scale& scale)
      : changes_(&changes), axis_(axis) {
    Place(twips, scale);
  }
  Coordinate(const Coordinate&) = delete;

  operator double() const { return value_; }

  Coordinate& operator=(double value) {
    const Single rounded = value;
    if (value_ == rounded) return *this;
    value_ = rounded;
    ++*changes_;
    return *this;
  }
  Coordinate& operator=(const Coordinate& other) { return *this = static_cast<double>(other.value_); }

  // The place in twips, in the scale that its container has now.
  double Twips(const Scale& scale) const { return value_ == converted_ ? twips_ : value_ * Unit(scale); }

  // Gives the place in twips, whatever the scale: how start values and changes of scale set it.
  void Place(double twips, const Scale& scale) {
    *this = twips / Unit(scale);
    converted_ = value_;
    twips_ = twips;
  }

 private:
  double Unit(const Scale& scale) const { return axis_ == Axis::Across ? scale.unitAcross : scale.unitDown; }

  ChangeCount* changes_;
  double twips_ = 0;
  Single value_;
  Single converted_;  // the value that stands for twips_
  Axis axis_;
};

}  // namespace quintara
