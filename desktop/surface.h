#pragma once

#include <QtCore/QRect>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

#include <map>
#include <optional>
#include <vector>

#include "desktop/drawing_layer.h"
#include "desktop/units.h"
#include "front/surface_watch.h"
#include "front/zoom.h"
#include "scene/container.h"
#include "scene/picture_box.h"

namespace quintara::desktop {

class Control;
class Session;

// The surface of a form or picture box: background, picture, drawing layer and graphical objects are painted
// on it; whatever has a surface of its own is a widget on top.
class Surface : public QWidget {
 public:
  Surface(Container& container, QWidget& parent, Session& session);

  // Takes over what has changed in the Scene since the last call, and how large it is to be shown, and
  // repaints those parts.
  void FollowSurface(const Zoom& zoom);
  // The widget of a child of this surface, or null.
  QWidget* WidgetOf(const Object& object) const;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  // Where a graphical object was painted last.
  struct Painted {
    bool visible;
    QRect area;
  };
  struct Child {
    const Object* object;
    Control* control;
  };

  void FollowBackground();
  void MakeChildren();
  void FollowPainted(const SurfaceChanges& changes);
  Painted StateOf(const Object& object) const;
  void FollowMarks(const SurfaceChanges& changes);
  const Surface* SurfaceShowingThrough() const;
  void PaintMarks(QPainter& painter) const;
  void Repaint(const QRect& area) { update(ToQRect(zoom_.Around(FromQt(area)))); }
  Object* Under(const QPoint& place) const;

  Container& container_;
  Session& session_;
  Zoom zoom_;
  qreal pixelRatio_ = 1;  // pixels of the screen to each of the window
  DrawingLayer layer_;
  bool hadMarks_ = false;
  QPixmap picture_;
  std::optional<Picture> shownPicture_;
  std::optional<Colour> shownColour_;
  std::vector<Child> children_;
  SurfaceWatch watch_;
  std::map<const Object*, Painted> painted_;
  const Object* pressed_ = nullptr;
};

}  // namespace quintara::desktop
