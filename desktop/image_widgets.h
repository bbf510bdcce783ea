#pragma once

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include "desktop/control.h"
#include "scene/graphics.h"

// Images and labels are painted on the surface of their container, which also takes the mouse for them. These
// widgets lie over them unseen and make them known to the keyboard and to assistive tools.

namespace quintara::desktop {

// An image that can be clicked.
class ImageButton final : public QAbstractButton, public Control {
 public:
  ImageButton(Image& image, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override {}
  void paintEvent(QPaintEvent*) override {}
  void keyPressEvent(QKeyEvent* event) override;
};

// A label whose text is read out.
class ReadOut final : public QLabel, public Control {
 public:
  ReadOut(Label& label, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override {}
  void paintEvent(QPaintEvent*) override {}
};

}  // namespace quintara::desktop
