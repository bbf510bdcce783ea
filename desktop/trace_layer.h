#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <cstddef>
#include <span>

#include "front/zoom.h"

class QPainter;

namespace quintara {
class QuintaraForm;
class ShotWatch;
struct PathPoint;
struct Shot;
struct TraceLook;
}  // namespace quintara

namespace quintara::desktop {

// The paths of the shells at the present target, over all that stands in the profile. They are kept as a
// picture, to which each tick of a flight adds one stroke.
class TraceLayer final : public QWidget {
 public:
  // Lies on the widget of the form's profile and goes with it.
  TraceLayer(QWidget& profile, const QuintaraForm& form, const ShotWatch& watch);

  // Takes over what has changed since the last call. Off, it is hidden and keeps nothing.
  void Follow(bool isOn, const Zoom& zoom);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Clear();
  void DrawShot(const Shot& shot, const TraceLook& look, std::size_t& points, std::size_t& marks);
  QPointF PlaceOf(const PathPoint& point) const;

  const QuintaraForm& form_;
  const ShotWatch& watch_;
  QPixmap picture_;
  Zoom zoom_;
  // What of the shots is in the picture; of the last one, so many of its points and marks.
  std::size_t shots_ = 0, points_ = 0, marks_ = 0;
  int target_ = 0;
  unsigned changes_ = 0;
};

}  // namespace quintara::desktop
