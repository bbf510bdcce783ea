#include <gtest/gtest.h>

#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "tests/desktop/when_open.h"
#include "tests/desktop/window_form.h"

namespace quintara::desktop {
namespace {

class SessionTest : public WindowTest {
 protected:
  bool WaitForTicks(int wanted) {
    return QTest::qWaitFor([&] { return ticks >= wanted; }, 5000);
  }
  void StartClock(int interval) {
    Do([this, interval] {
      form.tmrClock.Interval = interval;
      form.tmrClock.Enabled = true;
    });
  }

  int ticks = 0;
};

TEST_F(SessionTest, NothingIsErasedByAKeyTypedInPassing) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
    Answer answer = Answer::Yes;
    WhenOpen<QMessageBox>(window(), [&](QMessageBox& box) {
      EXPECT_EQ(box.informativeText(), "");
      QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, key);
    });
    Do([&] {
      scene.Ask({"Sure?", "Title", MessageBox::Buttons::YesAndNo}, form,
                [&](Answer given) { answer = given; });
    });
    EXPECT_EQ(answer, Answer::No) << key;
  }
}

TEST_F(SessionTest, TheNoteOnUninstallingSaysHowItIsDoneHere) {
  QString said;
  WhenOpen<QMessageBox>(window(), [&](QMessageBox& box) {
    said = box.informativeText();
    EXPECT_EQ(box.text(), "Simply double click");
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  Do([&] { scene.Tell("Simply double click", "Uninstall Quintara"); });
  EXPECT_TRUE(said.contains("delete the folder")) << said.toStdString();
}

TEST_F(SessionTest, AMessageBoxHoldsTheTicks) {
  int whileOpen = -1;
  Answer answer = Answer::Ok;
  form.tmrClock.Tick.Bind([&] { ++ticks; });
  StartClock(10);
  WhenOpen<QMessageBox>(window(), [&](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "Title");
    EXPECT_EQ(ColourAt(3210, 510), QColor(255, 0, 0)) << "what the handler did so far shows";
    const int before = ticks;
    QTest::qWait(80);
    whileOpen = ticks - before;
    QTest::mouseClick(box.button(QMessageBox::No), Qt::LeftButton);
  });
  Do([&] {
    form.imgFire.Visible = false;
    form.BackColor = 0x000000FF;
    const std::int64_t asked = scene.dispatcher().now();
    scene.Ask({"Text", "Title", MessageBox::Buttons::YesAndNo}, form, [&answer, asked, this](Answer given) {
      answer = given;
      EXPECT_GE(scene.dispatcher().now(), asked + 80)
          << "timers begun from here on wait for their whole time";
    });
  });
  EXPECT_EQ(whileOpen, 0);
  EXPECT_EQ(answer, Answer::No);
  EXPECT_TRUE(WaitForTicks(ticks + 3)) << "and they go on afterwards";
}

TEST_F(SessionTest, APopupMenuGivesTheChosenItem) {
  Note(form.mnuTwo.Click, "two");
  WhenOpen<QMenu>(window(), [&](QMenu& menu) {
    EXPECT_EQ(menu.actions().size(), 3);
    EXPECT_EQ(menu.pos(), window().mapToGlobal(Pixel(1500, 750)));
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Return);
  });
  Do([&] { form.PopupMenu(form.mnuTop, 1500, 750); });
  EXPECT_EQ(heard, Heard{"two"});
  form.mnuOne.Visible = false;
  WhenOpen<QMenu>(window(), [&](QMenu& menu) {
    EXPECT_EQ(menu.actions().size(), 2);
    QTest::keyClick(&menu, Qt::Key_Escape);
  });
  Do([&] { form.PopupMenu(form.mnuTop, 0, 0); });
  EXPECT_EQ(heard, Heard{"two"}) << "dismissed";
}

TEST_F(SessionTest, FormsComeAndGo) {
  Do([&] {
    other.Show();
    other.Unload();
  });
  EXPECT_EQ(session.WindowOf(other), nullptr);
  Show(other);
  Note(other.QueryUnload, "query");
  Do([&] { other.lblBehind.Caption = "changed"; });
  EXPECT_FALSE(session.WindowOf(other)->close()) << "the Scene takes the window away";
  EXPECT_EQ(heard, Heard{"query"});
  EXPECT_FALSE(other.loaded());
  EXPECT_EQ(session.WindowOf(other), nullptr);
  Show(other);
  EXPECT_TRUE(session.WindowOf(other)->isVisible());

  // A form may go in a handler of its own button.
  other.cmdPush.Click.Bind([&] { other.Unload(); });
  auto* button = qobject_cast<QPushButton*>(session.WindowOf(other)->WidgetOf(other.cmdPush));
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(session.WindowOf(other), nullptr);

  QTimer::singleShot(0, &window(), [this] { window().close(); });
  EXPECT_EQ(QApplication::exec(), 0) << "the last form takes the application with it";
  EXPECT_TRUE(scene.ended());
}

TEST_F(SessionTest, AFaultInAHandlerIsToldAndTheGameGoesOn) {
  form.cmdPush.Click.Bind([&] { form.Line1(7).Visible = true; });
  QString told;
  WhenOpen<QMessageBox>(window(), [&](QMessageBox& box) {
    told = box.text();
    box.accept();
  });
  QTest::mouseClick(&WidgetOf(form.cmdPush), Qt::LeftButton);
  EXPECT_TRUE(told.contains("Line1(7)")) << told.toStdString();
  form.tmrClock.Tick.Bind([&] { ++ticks; });
  StartClock(10);
  EXPECT_TRUE(WaitForTicks(2));
}

}  // namespace
}  // namespace quintara::desktop
