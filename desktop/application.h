#pragma once

#include <QtWidgets/QApplication>

namespace quintara::desktop {

// The application, with the look of its windows. What goes wrong outside the Scene, such as in a painting for
// which there is no memory, is told to the player, and the game goes on.
class Application final : public QApplication {
 public:
  Application(int& argumentCount, char** arguments);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  void TellFault(const QString& what);

  bool told_ = false;
};

}  // namespace quintara::desktop
