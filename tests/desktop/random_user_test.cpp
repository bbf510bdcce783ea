#include <gtest/gtest.h>

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <random>
#include <set>

#include "scene/input.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

constexpr Qt::Key keys[] = {Qt::Key_S,      Qt::Key_M,         Qt::Key_F,      Qt::Key_R,    Qt::Key_D,
                            Qt::Key_H,      Qt::Key_C,         Qt::Key_1,      Qt::Key_3,    Qt::Key_Space,
                            Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Escape, Qt::Key_Tab,  Qt::Key_Backtab,
                            Qt::Key_Up,     Qt::Key_Down,      Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End,
                            Qt::Key_Plus,   Qt::Key_Minus,     Qt::Key_0,      Qt::Key_F1};

// Presses whatever there is and closes windows, as fast as the event loop turns, also behind a menu or a box
// that is open. Only what ends the game is left alone.
class RandomUserTest : public GameWindows {
 protected:
  void PlayFor(int howManyTurns) {
    turns = howManyTurns;
    QTimer::singleShot(0, &timers, [this] { Turn(); });
    QApplication::exec();
  }

  int boxesAnswered = 0, menusAnswered = 0;
  std::set<const Form*> shown;

 private:
  int Any(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
  template <typename Widget>
  Widget& AnyOf(const QList<Widget*>& widgets) {
    return *widgets[Any(static_cast<int>(widgets.size()))];
  }
  QPoint AnyPlaceOn(const QWidget& widget) {
    return {Any(std::max(widget.width(), 1)), Any(std::max(widget.height(), 1))};
  }
  bool EndsTheGame(const QWidget* control) { return control == WindowOf(main).WidgetOf(main.cancelButton); }

  void Answer(QMenu& menu) {
    ++menusAnswered;
    constexpr Qt::Key menuKeys[] = {Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape};
    QTest::keyClick(&menu, menuKeys[Any(3)]);
  }
  void Answer(QMessageBox& box) {
    ++boxesAnswered;
    QTest::mouseClick(&AnyOf(box.buttons()), Qt::LeftButton);
  }
  void ClickSomewhereIn(QWidget& window) {
    QList<QWidget*> controls = window.findChildren<QWidget*>();
    controls.removeIf([](const QWidget* control) { return !control->isVisible(); });
    const QWidget& control = AnyOf(controls);
    const QPoint place = control.mapTo(&window, AnyPlaceOn(control));
    QWidget* hit = window.childAt(place);
    if (hit == nullptr || EndsTheGame(hit)) return;
    const QPoint pressed = hit->mapFrom(&window, place), slipped = pressed + QPoint(0, Any(2) * Any(30));
    QTest::mousePress(hit, Qt::LeftButton, {}, pressed);
    QTest::mouseRelease(hit, Qt::LeftButton, {}, slipped);
  }
  void PressAKeyIn(QWidget& window) {
    QWidget* focused = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    if (EndsTheGame(focused)) return;
    QTest::keyClick(focused, keys[Any(std::size(keys))], Any(6) == 0 ? Qt::ControlModifier : Qt::NoModifier);
  }
  void PlayOn() {
    session.Run([this] {
      program.scene().dispatcher().Advance(Any(3000));
      for (Object* button : {&main.searchButton, &main.magnifyButton}) UserClicks(*button);
      UserClicks(main.fireButton);
    });
  }
  Form& AnyForm() { return *program.scene().forms()[static_cast<std::size_t>(Any(6))]; }
  void OpenAWindow() {
    Form& form = AnyForm();
    Do([&form] { form.Show(); });
    if (&form == &program.masters()) TypeAName();
  }
  void CloseByTheFrame(QWidget* window) {
    if (window != nullptr && window != &WindowOf(main)) window->close();
  }

  void Act() {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    // A window manager lets the user close what stands behind a menu or a box.
    if ((menu != nullptr || box != nullptr) && Any(3) == 0)
      return CloseByTheFrame(session.WindowOf(AnyForm()));
    if (menu != nullptr) return Answer(*menu);
    if (box != nullptr) return Answer(*box);
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.removeIf([](const QWidget* window) { return !window->isVisible(); });
    QWidget& window = AnyOf(windows);
    const int what = Any(100);
    if (what < 50) return ClickSomewhereIn(window);
    if (what < 76) return PressAKeyIn(window);
    if (what < 86) return PlayOn();
    if (what < 93) return OpenAWindow();
    CloseByTheFrame(&window);
  }
  // The next turn comes even where this one waits for a menu or a box.
  void Turn() {
    const bool inMenuOrBox = QThread::currentThread()->loopLevel() > 1;
    if (turns == 0 && !inMenuOrBox) return QApplication::exit();
    QTimer::singleShot(0, &timers, [this] { Turn(); });
    turns = std::max(turns - 1, 0);
    Act();
    if (!program.scene().dispatcher().busy()) WindowsAreThoseOfTheForms();
  }
  void WindowsAreThoseOfTheForms() {
    for (Form* form : program.scene().forms()) {
      if (form->IsVisible()) shown.insert(form);
      const FormWindow* window = session.WindowOf(*form);
      EXPECT_EQ(window != nullptr && window->isVisible(), form->IsVisible()) << form->name();
    }
  }

  std::mt19937 random{1};
  QObject timers;
  int turns = 0;
};

TEST_F(RandomUserTest, NothingThatIsPressedEndsTheGame) {
  PlayFor(4000);
  EXPECT_FALSE(program.scene().ended());
  EXPECT_GT(boxesAnswered, 5);
  EXPECT_GT(menusAnswered, 50);
  EXPECT_EQ(shown.size(), 6u);
}

}  // namespace
}  // namespace quintara::desktop
