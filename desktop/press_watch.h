#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>

#include "front/presses.h"

namespace quintara::desktop {

// Sees every press of the application's windows before they do, and keeps the time of it.
class PressWatch final : public QObject {
 public:
  // The table must outlive it.
  explicit PressWatch(const AssistanceTable& table);

  // Whether the user presses the control on purpose, with what went down last. To be asked once for a press.
  bool Counts(const Object& control);

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  Presses presses_;
  QElapsedTimer clock_;
};

}  // namespace quintara::desktop
