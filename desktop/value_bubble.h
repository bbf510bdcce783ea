#pragma once

#include <QtWidgets/QLabel>

#include "front/zoom.h"

namespace quintara::desktop {

// The small box beside a bar's thumb that shows a value: the one that a drag would give, or the one that is
// being typed. It lies on top of all that its window holds.
class ValueBubble final : public QLabel {
 public:
  explicit ValueBubble(QWidget& window);

  // Beside a place in the window: to the left of a bar that stands, above one that lies.
  void ShowAt(const QRect& thumb, Qt::Orientation bar, const QString& text, const Zoom& zoom);
};

}  // namespace quintara::desktop
