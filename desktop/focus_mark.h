#pragma once

#include <QtWidgets/QWidget>

namespace quintara::desktop {

// The dotted frame around the control of a window that has the focus. Buttons and texts show theirs
// themselves.
class FocusMark final : public QWidget {
 public:
  explicit FocusMark(QWidget& window);

  // Goes to where the focus is now.
  void Follow();

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace quintara::desktop
