#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <set>

#include "desktop/appearance.h"
#include "desktop/shot_log.h"
#include "front/shot_table.h"
#include "front/trace.h"
#include "scene/input.h"
#include "tests/desktop/game_windows.h"
#include "tests/desktop/when_open.h"

namespace quintara::desktop {
namespace {

class StripTest : public GameWindows {
 protected:
  StripTest() : GameWindows(Below::Strip) {}

  // The label with the sentence, found by what it says to assistive tools.
  QLabel& Sentence() {
    for (QLabel* label : WindowOf(main).findChildren<QLabel*>()) {
      if (label->accessibleName().toStdString() == companion.Sentence()) return *label;
    }
    throw std::runtime_error("no label says the sentence");
  }
  QToolButton& Button(const QString& name) {
    for (QToolButton* button : WindowOf(main).findChildren<QToolButton*>()) {
      if (button->accessibleName() == name) return *button;
    }
    throw std::runtime_error("no button " + name.toStdString());
  }
  void Choose(const QString& item) {
    WhenOpen<QMenu>(WindowOf(main), [&](QMenu& menu) {
      for (QAction* action : menu.actions()) {
        if (!action->text().startsWith(item)) continue;
        menu.setActiveAction(action);
        QTest::keyClick(&menu, Qt::Key_Return);
      }
    });
    Activate(main);
    Press(Qt::Key_F10);
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() == nullptr; }));
  }
  // As the game does it, so that there is a mountain before the target.
  void FindTarget() {
    program.scene().chance().Queue(0.06325);
    session.Run([this] { UserClicks(main.searchButton); });
    while (!main.magnifyButton.Enabled) session.Run([this] { program.scene().dispatcher().Advance(50); });
    session.Run([this] { UserClicks(main.magnifyButton); });
  }
  // Fires and lets so many ticks pass.
  void Fire(int ticks) {
    session.Run([this] { UserClicks(main.fireButton); });
    for (int tick = 0; tick < ticks; ++tick)
      session.Run([this] { program.scene().dispatcher().Advance(17); });
  }
  void Lay(std::int16_t degrees, std::int16_t velocity) {
    session.Run([&] { UserDragsTo(main.elevationBar, static_cast<std::int16_t>(370 - degrees)); });
    session.Run([&] { UserDragsTo(main.velocityBar, velocity); });
  }
  // Where a point of a path lies in the window.
  QPoint PlaceOf(const PathPoint& point) {
    const auto place = PlaceOfTrace(main, point);
    return WidgetOf(main.profile).mapTo(&WindowOf(main), QPoint(ToPixels(place.x), ToPixels(place.y)));
  }
  // Whether a pixel at the place or beside it has about that colour.
  static bool Shows(const QImage& shown, const QPoint& place, const QColor& colour) {
    constexpr int tolerance = 40;
    for (const QPoint beside : {QPoint(0, 0), QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
      const QColor seen = shown.pixelColor(place + beside);
      if (std::abs(seen.red() - colour.red()) + std::abs(seen.green() - colour.green()) +
              std::abs(seen.blue() - colour.blue()) <
          tolerance)
        return true;
    }
    return false;
  }
  // The share of the path's points that are shown in the colour, of those that the window has room for.
  double ShareOf(const Shot& shot, const TraceLook& look) {
    const QImage shown = WindowOf(main).grab().toImage();
    const int top = WidgetOf(main.profile).y() + ToPixels(TopOfTrace(main)) + 3;
    const QRect seen(WidgetOf(main.profile).x(), top, 980, 610 - top);
    double points = 0, coloured = 0;
    for (const PathPoint& point : shot.path) {
      if (!seen.contains(PlaceOf(point))) continue;
      ++points;
      coloured += Shows(shown, PlaceOf(point), ToQColor(look.colour));
    }
    EXPECT_GT(points, 5);
    return coloured / points;
  }
};

TEST_F(StripTest, TheSentenceStandsBelowTheFormAndFollowsTheGame) {
  const FormWindow& window = WindowOf(main);
  EXPECT_EQ(window.height(), 713 + 24);
  EXPECT_EQ(Sentence().text(), "Click S or press S to look for a target.");
  EXPECT_GE(Sentence().mapTo(&window, QPoint()).y(), 713);
  OpenProfile();
  session.SetZoom(Zoom(0.75));
  Fire(20);
  EXPECT_EQ(Sentence().text().toStdString(), companion.Sentence()) << "it has room at every zoom";
  EXPECT_EQ(window.height(), 535 + 18);
  Do([&] { program.masters().Show(); });
  TypeAName();
  Do([&] {
    main.score.Caption = "35";
    program.masters().nameBox.Text = std::string(300, 'W');
  });
  EXPECT_TRUE(Sentence().text().endsWith("…"));
  EXPECT_EQ(Sentence().toolTip().toStdString(), companion.Sentence()) << "what is cut off can still be read";
}

TEST_F(StripTest, ItsButtonsComeLastAndLeaveTheFocusToTheGame) {
  const Names order = TabOrder(main);
  ASSERT_EQ(order.size(), 10U);
  EXPECT_TRUE(std::all_of(order.begin() + 4, order.end(), [](const auto& name) { return name.empty(); }));
  WidgetOf(main.soundButton).setFocus();
  QTest::mouseClick(&Button("Mute"), Qt::LeftButton);
  EXPECT_TRUE(session.settings().mute);
  EXPECT_EQ(NameOfFocus(main), "cmdSound");
  Press(Qt::Key_V);
  EXPECT_FALSE(session.settings().mute);
  Button("Larger windows").setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(session.settings().zoom, 1.1);
  Press(Qt::Key_B, Qt::ControlModifier);
  EXPECT_FALSE(Button("Larger windows").isVisible());
  EXPECT_EQ(WindowOf(main).height(), 784);
  EXPECT_EQ(QApplication::focusWidget(), &WindowOf(main)) << "no button of the game has it now";
  Choose("Show the strip");
  EXPECT_TRUE(Button("Larger windows").isVisible()) << "there is a way back";
}

TEST_F(StripTest, WhatIsKeptIsForgottenAfterAQuestion) {
  std::vector<int> heard;
  session.WhenChosen([&](const Settings& settings) { heard.push_back(settings.Loudness()); });
  Settings mine = session.settings();
  mine.volume = 40;
  mine.trace = true;
  session.Choose(mine);
  for (const bool sure : {false, true}) {
    Choose("Forget all");
    bool asked = false;
    WhenOpen<QMessageBox>(WindowOf(main), [&](QMessageBox& box) {
      asked = true;
      if (sure) box.setDefaultButton(QMessageBox::Yes);
      QTest::keyClick(&box, Qt::Key_Return);
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return asked; }));
    EXPECT_EQ(session.settings(), sure ? Settings() : mine) << "No is what Enter presses";
  }
  EXPECT_EQ(heard, (std::vector<int>{40, 100}));
}

TEST_F(StripTest, TheTraceFollowsEachShellOverMountainAndSky) {
  FindTarget();
  Lay(60, 700);
  Press(Qt::Key_T);
  Fire(40);
  const Shot first = companion.shots().shots().back();
  EXPECT_EQ(ShareOf(first, lastTrace), 1);
  std::set<const QWidget*> below;
  for (const PathPoint& point : first.path) below.insert(WindowOf(main).childAt(PlaceOf(point)));
  EXPECT_TRUE(below.contains(&WidgetOf(main.mountain)));
  EXPECT_TRUE(below.contains(&WidgetOf(main.profile))) << "the mouse goes through";
  Lay(55, 700);
  Fire(30);
  const Shot second = companion.shots().shots().back();
  EXPECT_LT(ShareOf(first, lastTrace), 0.5);
  EXPECT_EQ(ShareOf(second, lastTrace), 1);
  const QImage with = WindowOf(main).grab().toImage();
  Press(Qt::Key_T);
  const QImage without = WindowOf(main).grab().toImage();
  const QPoint earlier = PlaceOf(first.path[10]);
  EXPECT_NE(with.pixelColor(earlier), without.pixelColor(earlier)) << "a thin one";
  EXPECT_EQ(ShareOf(second, lastTrace), 0);
  Press(Qt::Key_T);
  EXPECT_EQ(ShareOf(second, lastTrace), 1) << "what flew while it was off is drawn, too";
  session.SetZoom(Zoom(2));
  session.SetZoom(Zoom(1));
  EXPECT_EQ(ShareOf(second, lastTrace), 1);
  Do([&] { main.target.Visible = true; });
  EXPECT_EQ(ShareOf(second, lastTrace), 0) << "the next target";
}

TEST_F(StripTest, TheLogFollowsTheGameAndCanBeTakenAway) {
  OpenProfile();
  Lay(60, 700);
  Press(Qt::Key_L);
  ASSERT_TRUE(
      QTest::qWaitFor([] { return dynamic_cast<ShotLog*>(QApplication::activeWindow()) != nullptr; }));
  auto* log = dynamic_cast<ShotLog*>(QApplication::activeWindow());
  const auto& view = *log->findChild<QTableView*>();
  EXPECT_EQ(view.model()->rowCount(), 0);
  const auto cell = [&](int row, int column) { return view.model()->index(row, column).data().toString(); };
  Fire(3);
  EXPECT_EQ(cell(0, 5), "in the air");
  Fire(3);
  EXPECT_EQ(cell(0, 5), "lost, next one fired");
  EXPECT_EQ(view.model()->rowCount(), 2);

  const auto& shots = companion.shots().shots();
  QTest::keyClick(log->focusWidget(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), TableOf(shots, '\t'));
  view.selectionModel()->select(view.model()->index(1, 0),
                                QItemSelectionModel::Select | QItemSelectionModel::Rows);
  QTest::keyClick(log->focusWidget(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), TableOf({&shots[1], 1}, '\t'));

  const std::string path = folder.text() + "/shots.csv";
  log->SaveAs(QString::fromStdString(path));
  EXPECT_EQ(BytesOf(path), TableOf(shots));
  QString told;
  WhenOpen<QMessageBox>(*log, [&](QMessageBox& box) {
    told = box.text();
    box.accept();
  });
  log->SaveAs(QString::fromStdString(folder.text() + "/nowhere/shots.csv"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }));
  EXPECT_TRUE(told.contains("nowhere")) << told.toStdString();

  Do([&] { main.shotsFired.Caption = "0"; });
  EXPECT_EQ(view.model()->rowCount(), 0) << "a new game";
  log->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(log));
  QTest::keyClick(log->focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(log->isVisible());
}

}  // namespace
}  // namespace quintara::desktop
