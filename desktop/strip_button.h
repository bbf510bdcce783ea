#pragma once

#include <QtWidgets/QToolButton>

#include "front/zoom.h"

class QAction;

namespace quintara::desktop {

// What a button of the strip shows.
enum class StripSign { Trace, Sound, Minus, Plus, FullScreen, Menu };

// A flat button with a sign, which does what its action does. A click leaves the focus where it is.
class StripButton final : public QToolButton {
 public:
  StripButton(QAction& action, StripSign sign, QWidget& strip);

  void Follow(const Zoom& zoom);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  StripSign sign_;
  Zoom zoom_;
};

}  // namespace quintara::desktop
