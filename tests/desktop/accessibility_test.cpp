#include <gtest/gtest.h>

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QPalette>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <set>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/assistance.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

class AccessibilityTest : public GameWindows {
 protected:
  std::string NameOf(const Object& object) {
    QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&WidgetOf(object));
    return told->text(QAccessible::Name).toStdString();
  }
  std::vector<Form*> AllForms() {
    return {&main,
            &program.projectile(),
            &program.trajectory(),
            &program.analysis(),
            &program.masters(),
            &program.about()};
  }
};

TEST_F(AccessibilityTest, EveryControlThatTakesTheFocusHasAName) {
  for (Form* form : AllForms()) {
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

TEST_F(AccessibilityTest, EveryRowOfTheTableIsAboutAControl) {
  std::set<std::pair<std::string_view, std::string_view>> keys;
  for (const Assistance& row : AssistanceTable()) {
    const auto& forms = program.scene().forms();
    const auto form =
        std::find_if(forms.begin(), forms.end(), [&](const Form* f) { return f->name() == row.form; });
    ASSERT_NE(form, forms.end()) << row.form;
    EXPECT_NE((*form)->Find(row.control), nullptr) << row.form << '.' << row.control;
    EXPECT_TRUE(row.readOut.empty() || (*form)->Find(row.readOut) != nullptr)
        << row.form << '.' << row.readOut;
    EXPECT_TRUE(row.keys.empty() || keys.insert({row.form, row.keys}).second) << row.keys << " twice";
  }
}

TEST_F(AccessibilityTest, ValuesFollowTheReadOuts) {
  OpenProfile();
  EXPECT_EQ(NameOf(main.VScroll1), "Elevation, 30 degrees");
  Do([&] { main.VScroll1.Value = 325; });
  EXPECT_EQ(NameOf(main.VScroll1), "Elevation, 45 degrees");
  Do([&] { main.VScroll2.Value = 500; });
  EXPECT_EQ(NameOf(main.VScroll2), "Muzzle velocity, 500 metres per second");
  Do([&] { main.Label31.Caption = "Real time to impact(sec)    12"; });
  EXPECT_EQ(NameOf(main.HScroll1), "Flight time, Real time to impact(sec) 12")
      << "which its own value need not change for";
  EXPECT_EQ(NameOf(main.cmdAdvanced), "Drag, OFF");
  EXPECT_EQ(NameOf(main.cmdSound), "Sound ON");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&WidgetOf(main.Image7))->role(), QAccessible::Button);

  TrajectoryForm& trajectory = program.trajectory();
  Open(trajectory);
  Do([&] { trajectory.HScroll2.Value = 150; });
  EXPECT_EQ(NameOf(trajectory.HScroll2), "Initial velocity, 150 metres per second");
}

TEST_F(AccessibilityTest, InstructionsRangeAndScoreCanBeReadOut) {
  Do([&] {
    main.Label4.Caption = "  Do   this";
    main.Label5.Visible = true;
    main.Label5.Caption = " Target at 22.0 km";
    main.Label17.Caption = "7";
  });
  EXPECT_EQ(NameOf(main.Label4), "Do this");
  EXPECT_EQ(NameOf(main.Label5), "Target at 22.0 km");
  EXPECT_EQ(NameOf(main.Label17), "Score, 7");
  EXPECT_TRUE(WidgetOf(main.Label5).isVisible());
  EXPECT_FALSE(WidgetOf(main.Label17).isVisible()) << "not before it shows";
}

TEST_F(AccessibilityTest, ToolTipsSayWhatTerseButtonsDo) {
  EXPECT_EQ(WidgetOf(main.cmdSearch).toolTip(), "Search for a target (S)");
  EXPECT_EQ(WidgetOf(main.cmdHelp).toolTip(), "Open the help menu (H)");
  OpenProfile();
  auto& console = WidgetOf(main.Picture8);
  const QPoint fire = WidgetOf(main.Image7).geometry().center();
  QHelpEvent over(QEvent::ToolTip, fire, console.mapToGlobal(fire));
  QApplication::sendEvent(&console, &over);
  EXPECT_EQ(QToolTip::text(), "Fire the shell (F)") << "the image is painted, but has one too";
  QToolTip::hideText();
}

TEST(AppearanceTest, ADarkSystemChangesNothing) {
  const QPalette own = QApplication::palette();
  for (const char* kind :
       {"QMenu", "QToolTip", "QPushButton", "QAbstractItemView", "QLineEdit", "QTextEdit", "QMessageBox"})
    QApplication::setPalette(
        QPalette(Qt::white, Qt::black, Qt::darkGray, Qt::black, Qt::gray, Qt::white, Qt::black), kind);
  QApplication::setPalette(QPalette(Qt::black));
  SetUpAppearance();
  for (const char* kind : {"QWidget", "QMenu", "QTipLabel", "QToolTip", "QPushButton", "QListView",
                           "QAbstractItemView", "QLineEdit", "QTextEdit", "QMessageBox"}) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      for (int role = 0; role < QPalette::NColorRoles; ++role) {
        const auto which = static_cast<QPalette::ColorRole>(role);
        EXPECT_EQ(QApplication::palette(kind).color(group, which), own.color(group, which))
            << kind << " role " << role;
      }
    }
  }
}

}  // namespace
}  // namespace quintara::desktop
