#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

#include <functional>

namespace quintara::desktop {

// Looks again and again until a menu or box of that kind is open, and does something to it; gives up when the
// context goes.
template <typename Widget>
void WhenOpen(QObject& context, std::function<void(Widget&)> action) {
  QTimer::singleShot(5, &context, [&context, action] {
    QWidget* open = QApplication::activePopupWidget();
    if (open == nullptr) open = QApplication::activeModalWidget();
    if (auto* widget = qobject_cast<Widget*>(open)) return action(*widget);
    WhenOpen<Widget>(context, action);
  });
}

}  // namespace quintara::desktop
