#pragma once

#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include "desktop/control.h"
#include "scene/buttons.h"

namespace quintara::desktop {

// A push button of either kind, with a caption or a picture as its face.
class ButtonWidget final : public QPushButton, public Control {
 public:
  ButtonWidget(Button& button, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  Button& button_;
};

// A framed caption.
class PanelWidget final : public QLabel, public Control {
 public:
  PanelWidget(SSPanel& panel, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;

 private:
  SSPanel& panel_;
};

}  // namespace quintara::desktop
