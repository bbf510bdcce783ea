#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include <random>

#include "scene/input.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

class ClosingTest : public GameWindows {
 protected:
  int Any(int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); }
  Form& AnyForm() { return *program.scene().forms()[static_cast<std::size_t>(Any(6))]; }

  void CloseByTheFrame(Form& form) {
    if (FormWindow* window = session.WindowOf(form)) window->close();
  }
  void CloseAnySideWindow() {
    Form& form = AnyForm();
    if (&form != &main) CloseByTheFrame(form);
  }
  void Click(Object& object) {
    session.Run([&] { UserClicks(object); });
  }
  void StartSomething() {
    Object* const starters[] = {&main.cmdSearch,
                                &main.Image7,
                                &program.projectile().cmdBall1,
                                &program.projectile().cmdBall3,
                                &program.trajectory().cmdFire,
                                &program.trajectory().cmdStop};
    Click(*starters[Any(6)]);
  }

  // While the next box or menu is open, does that and then answers it.
  void WhileItWaits(std::function<void()> action) {
    QTimer::singleShot(0, &timers, [this, action] {
      auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (menu == nullptr && box == nullptr) return;
      action();
      ++waited;
      if (menu == nullptr) return box->done(Any(2) == 0 ? QMessageBox::Yes : QMessageBox::No);
      menu->setActiveAction(menu->actions().at(Any(3)));
      QTest::keyClick(menu, Qt::Key_Return);
    });
  }
  void OpenMenuOrBox() {
    WhileItWaits([this] {
      for (int i = 0; i < 3; ++i) CloseAnySideWindow();
      QTest::qWait(Any(8));
    });
    if (Any(2) == 0) return Click(main.cmdHelp);
    Do([this] { program.masters().Show(); });
    Click(program.masters().cmdRemove);
  }
  void WindowsAreThoseOfTheForms() {
    for (Form* form : program.scene().forms()) {
      const FormWindow* window = session.WindowOf(*form);
      ASSERT_EQ(window != nullptr && window->isVisible(), form->IsVisible()) << form->name();
    }
  }

  std::mt19937 random{20};
  QObject timers;
  int waited = 0;
};

TEST_F(ClosingTest, AnyWindowMayGoAtAnyMoment) {
  OpenProfile();
  for (int round = 0; round < 300; ++round) {
    SCOPED_TRACE(round);
    switch (Any(5)) {
      case 0: Do([&form = AnyForm()] { form.Show(); }); break;
      case 1: StartSomething(); break;
      case 2: CloseAnySideWindow(); break;
      case 3: OpenMenuOrBox(); break;
      default: QTest::qWait(Any(6)); break;
    }
    WindowsAreThoseOfTheForms();
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(waited, 20);
}

TEST_F(ClosingTest, TheMainWindowMayGoWhileABoxIsOpen) {
  Open(program.masters());
  Open(program.trajectory());
  WhileItWaits([this] { CloseByTheFrame(main); });
  Click(program.masters().cmdRemove);
  EXPECT_EQ(waited, 1);
  EXPECT_TRUE(program.scene().ended());
  for (Form* form : program.scene().forms()) EXPECT_EQ(session.WindowOf(*form), nullptr) << form->name();
}

}  // namespace
}  // namespace quintara::desktop
