#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include "front/surface_watch.h"
#include "front/zoom.h"

class QPainter;

namespace quintara::desktop {

// The marks on a surface, kept as an image: thousands of them cost no more to repaint than one.
class DrawingLayer {
 public:
  // Takes over what was marked or wiped since the last look; returns the part that looks different now. The
  // size is that of the widget.
  QRect Follow(const Container& container, const SurfaceChanges& changes, const QSize& size, const Zoom& zoom,
               qreal pixelRatio);
  void Paint(QPainter& painter) const;

 private:
  QImage image_;
  QRect marked_;
};

}  // namespace quintara::desktop
