#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QPalette>
#include <QtWidgets/QToolTip>

#include "desktop/appearance.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

class AccessibilityTest : public GameWindows {
 protected:
  QAccessibleInterface& Told(const Object& object) {
    return *QAccessible::queryAccessibleInterface(&WidgetOf(object));
  }
  std::string NameOf(const Object& object) { return Told(object).text(QAccessible::Name).toStdString(); }
};

TEST_F(AccessibilityTest, EveryControlThatTakesTheFocusHasAName) {
  for (Form* form : program.scene().forms()) {
    Open(*form);
    Do([&] {
      for (Object* object : form->objects()) {
        if (auto* box = dynamic_cast<Box*>(object)) box->Visible = true;
      }
    });
    int controls = 0;
    for (const Object* object : form->objects()) {
      const QWidget* widget = WindowOf(*form).WidgetOf(*object);
      if (widget == nullptr || widget->focusPolicy() == Qt::NoFocus) continue;
      ++controls;
      EXPECT_NE(NameOf(*object), "") << FullName(*object);
    }
    EXPECT_GT(controls, 0) << form->name();
  }
}

TEST_F(AccessibilityTest, NamesFollowWhatTheControlsShow) {
  EXPECT_FALSE(WidgetOf(main.score).isVisible()) << "the score is not told before it shows";
  OpenProfile();
  Do([&] {
    main.elevationBar.Value = 325;
    main.timeToImpact.Caption = "Real time to impact(sec)    12";
    main.score.Caption = "7";
  });
  EXPECT_EQ(NameOf(main.elevationBar), "Elevation, 45 degrees");
  EXPECT_EQ(NameOf(main.flightTimeBar), "Flight time, Real time to impact(sec) 12")
      << "whose own value is the same";
  EXPECT_EQ(NameOf(main.score), "Score, 7");
  EXPECT_EQ(Told(main.fireButton).role(), QAccessible::Button);
}

TEST_F(AccessibilityTest, ToolTipsSayWhatTerseButtonsDo) {
  OpenProfile();
  auto& panel = WidgetOf(main.firingPanel);
  const QPoint fire = WidgetOf(main.fireButton).geometry().center();
  QHelpEvent over(QEvent::ToolTip, fire, panel.mapToGlobal(fire));
  QApplication::sendEvent(&panel, &over);
  EXPECT_EQ(QToolTip::text(), "Fire the shell (F)") << "the image is painted, but has one too";
  QToolTip::hideText();
  Do([&] { main.fireButton.Enabled = false; });
  QApplication::sendEvent(&panel, &over);
  EXPECT_EQ(QToolTip::text(), "Move a bar first");
  QToolTip::hideText();
  EXPECT_EQ(WidgetOf(main.resetButton).toolTip(), "After a hit or the bonus shell");
  EXPECT_FALSE(WidgetOf(main.elevationBar).toolTip().isEmpty());
  for (const Object* object :
       {static_cast<const Object*>(&main.resetButton), static_cast<const Object*>(&main.magnifyButton)}) {
    QWidget& off = WidgetOf(*object);
    ASSERT_FALSE(off.isEnabled());
    QHelpEvent overIt(QEvent::ToolTip, off.rect().center(), off.mapToGlobal(off.rect().center()));
    QApplication::sendEvent(&off, &overIt);
    EXPECT_EQ(QToolTip::text(), off.toolTip()) << object->name();
    QToolTip::hideText();
  }
}

TEST(AppearanceTest, ADarkSystemChangesNothing) {
  const QPalette own = QApplication::palette();
  const QPalette dark(Qt::white, Qt::black, Qt::darkGray, Qt::black, Qt::gray, Qt::white, Qt::black);
  const char* const kinds[] = {"QWidget",   "QMenu",     "QTipLabel", "QPushButton",
                               "QListView", "QLineEdit", "QTextEdit"};
  for (const char* kind : kinds) QApplication::setPalette(dark, kind);
  QApplication::setPalette(QPalette(Qt::black));
  SetUpAppearance();
  for (const char* kind : kinds) {
    for (const auto role :
         {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text, QPalette::Button})
      EXPECT_EQ(QApplication::palette(kind).color(role), own.color(role)) << kind << " role " << role;
  }
}

}  // namespace
}  // namespace quintara::desktop
