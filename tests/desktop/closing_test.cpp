#include <gtest/gtest.h>

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QMenu>

#include "scene/input.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

class ClosingTest : public GameWindows {
 protected:
  // In the next turn of the event loop, also where this one waits for a menu or a box.
  void Next(const std::function<void()>& action) { QTimer::singleShot(0, &timers, action); }
  void Click(Object& object) {
    session.Run([&] { UserClicks(object); });
  }

 private:
  QObject timers;
};

// Who chooses a document, closes it and asks for a box faster than the screen tells which window is the
// active one, finds the closed window active. It goes while the box is open.
TEST_F(ClosingTest, ABoxOutlivesAWindowThatWasClosedJustBefore) {
  Open(program.masters());
  QPointer<FormWindow> closed;
  bool wasActive = false, boxIsLeft = false;
  const auto askForABox = [&] {
    wasActive = !closed.isNull() && closed->isActiveWindow();
    Next([&] {
      QTest::qWait(0);
      boxIsLeft = closed.isNull() && QApplication::activeModalWidget() != nullptr;
      if (boxIsLeft) QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    Click(program.masters().removeButton);
    QApplication::exit();
  };
  const auto closeTheDocument = [&] {
    Next(askForABox);
    closed = &WindowOf(program.analysis());
    closed->close();
  };
  Next([this] { Click(main.helpButton); });
  Next([&] {
    Next(closeTheDocument);
    QMenu* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    menu->setActiveAction(menu->actions().at(2));
    QTest::keyClick(menu, Qt::Key_Return);
  });
  QApplication::exec();
  EXPECT_TRUE(wasActive);
  EXPECT_TRUE(boxIsLeft);
}

}  // namespace
}  // namespace quintara::desktop
