#pragma once

#include <QtCore/QPoint>
#include <QtCore/QRect>

namespace quintara::desktop {

// How large windows are shown: from the pixels in which forms are laid out to those of the screen. At a
// factor of 1 they are the same.
class Zoom {
 public:
  constexpr explicit Zoom(double factor = 1) : factor_(factor) {}

  constexpr double factor() const { return factor_; }
  // The next step up or down; the last one stays.
  Zoom Larger() const;
  Zoom Smaller() const;

  int operator()(int length) const { return qRound(length * factor_); }
  QPoint operator()(const QPoint& place) const { return place * factor_; }
  // What touches stays touching.
  QRect operator()(const QRect& place) const;
  // Every pixel that painting in this place may reach.
  QRect Around(const QRect& place) const;

  friend constexpr bool operator==(const Zoom&, const Zoom&) = default;

 private:
  double factor_;
};

}  // namespace quintara::desktop
