#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtGui/QImage>

#include <cstddef>

#include "front/zoom.h"
#include "scene/property.h"

class QPainter;

namespace quintara {
class Container;
}

namespace quintara::desktop {

// The marks on a surface, kept as an image: thousands of them cost no more to repaint than one.
class DrawingLayer {
 public:
  // Takes over what was marked or wiped since the last call; returns the part that looks different now. The
  // size is that of the widget.
  QRect Follow(const Container& container, const QSize& size, const Zoom& zoom, qreal pixelRatio);
  void Paint(QPainter& painter) const;

 private:
  QImage image_;
  QRect marked_;
  std::size_t drawn_ = 0;
  ChangeCount wipes_ = 0;
};

}  // namespace quintara::desktop
