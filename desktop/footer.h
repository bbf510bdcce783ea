#pragma once

#include <QtWidgets/QWidget>

#include "front/zoom.h"

namespace quintara::desktop {

// What a window shows below its form.
class Footer : public QWidget {
 public:
  using QWidget::QWidget;

  // In pixels at a zoom of 1; 0 while it is hidden.
  virtual int HeightBelow() const = 0;
  // Takes over what has changed since the last call, and how large it is to be shown. The window has given it
  // its place before.
  virtual void Follow(const Zoom& zoom) = 0;
};

}  // namespace quintara::desktop
