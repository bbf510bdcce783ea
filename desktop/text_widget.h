#pragma once

#include <QtWidgets/QLineEdit>

#include "desktop/control.h"
#include "scene/text_controls.h"

namespace quintara::desktop {

// One line of text that the user types.
class TextWidget final : public QLineEdit, public Control {
 public:
  TextWidget(TextBox& box, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  TextBox& box_;
  bool typing_ = false;
};

}  // namespace quintara::desktop
