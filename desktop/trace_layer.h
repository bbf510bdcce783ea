#pragma once

#include <QtGui/QPixmap>
#include <QtGui/QPolygonF>
#include <QtWidgets/QWidget>

#include <cstddef>

#include "front/zoom.h"

class QRegion;

namespace quintara {
class QuintaraForm;
class ShotWatch;
struct PathPoint;
struct Shot;
struct TraceLook;
}  // namespace quintara

namespace quintara::desktop {

// The paths of the shells at the present target, over all that stands in the profile. They are kept as
// pictures, to which each tick of a flight adds one stroke.
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
  void Begin(const Zoom& zoom);
  // What the pictures don't show yet of the shot that is the last one in them.
  void Draw(const Shot& shot);
  void Draw(const QPolygonF& line, const QPolygonF& marks, const TraceLook& look, QPixmap& picture) const;
  void Weaken(const Shot& shot);
  QRegion RegionOf(const Shot& shot) const;
  QPointF PlaceOf(const PathPoint& point) const;

  const QuintaraForm& form_;
  const ShotWatch& watch_;
  QPixmap thin_;    // all of them
  QPixmap strong_;  // the last one, over that
  Zoom zoom_;
  // What is in the pictures; of the last shot, so many of its points and marks.
  std::size_t shots_ = 0, points_ = 0, marks_ = 0;
  int target_ = 0;
  unsigned changes_ = 0;
};

}  // namespace quintara::desktop
