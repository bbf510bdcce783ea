#include <gtest/gtest.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTextEdit>

#include "desktop/value_bubble.h"
#include "tests/desktop/game_windows.h"

namespace quintara::desktop {
namespace {

using Objects = std::initializer_list<const Object*>;

class KeyboardTest : public GameWindows {
 protected:
  void ExpectTabOrder(Form& form, const Names& names) { EXPECT_EQ(TabOrder(form), names) << form.name(); }
};

TEST_F(KeyboardTest, TabWalksThroughWhatCanBeUsed) {
  ExpectTabOrder(main, {"cmdSearch", "cmdSound", "cmdHelp", "cmdCancel"});
  OpenProfile();
  // The focus was on Search, and goes on from there.
  ExpectTabOrder(main, {"VScroll1", "VScroll2", "HScroll1", "cmdAdvanced", "cmdSound", "cmdHelp", "cmdCancel",
                        "Image7"});
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(NameOfFocus(main), "Image7");
  for (Form* form : program.scene().forms()) {
    if (form != &main) Open(*form);
  }
  Do([&] {
    program.analysis().Open(HelpTopic::Physics);
    program.masters().namePanel.Visible = true;
  });
  const std::pair<Form&, Names> orders[] = {
      {program.trajectory(), {"HScroll1", "HScroll2", "HScroll3", "cmdFire", "Slider1", "cmdCancel"}},
      {program.projectile(), {"cmdBall1", "cmdBall2", "cmdBall3", "cmdStop", "cmdCancel"}},
      {program.analysis(), {"rtbMath", "cmdFreeFall", "cmdCancel", "cmdTrajectory"}},
      {program.masters(), {"Text1", "List1", "cmdRemove", "cmdCancel"}}};
  for (const auto& [form, names] : orders) {
    Activate(form);
    ExpectTabOrder(form, names);
  }
}

TEST_F(KeyboardTest, FireIsTheFirstStopAndCancelTheLast) {
  Do([&] {
    main.searchButton.Enabled = false;
    main.magnifyButton.Enabled = true;
  });
  for (const Qt::Key key : {Qt::Key_M, Qt::Key_Tab}) Press(key);
  EXPECT_EQ(NameOfFocus(main), "VScroll1") << "Fire is off";
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(NameOfFocus(main), "cmdCancel");
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Up}) Press(key);
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(NameOfFocus(main), "Image7");
  Do([&] {
    main.readme.Visible = true;
    main.closeReadmeButton.Visible = true;
  });
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(NameOfFocus(main), "cmdCancel") << "behind all that may show";
}

TEST_F(KeyboardTest, TabGoesOnFromAControlThatCanNotBeUsedAnyMore) {
  main.soundButton.Click.Bind([&] { main.soundButton.Enabled = false; });
  WidgetOf(main.soundButton).setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(NameOfFocus(main), "") << "a second blank presses nothing";
  Press(Qt::Key_Tab);
  EXPECT_EQ(NameOfFocus(main), "cmdHelp");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(NameOfFocus(main), "cmdSearch");
}

TEST_F(KeyboardTest, TheControlWithTheFocusIsMarked) {
  OpenProfile();
  for (const Object* object :
       Objects{&main.elevationBar, &main.flightTimeBar, &main.fireButton, &main.helpButton}) {
    QWidget& widget = WidgetOf(*object);
    const QRect place(widget.mapTo(&WindowOf(main), QPoint()), widget.size());
    WindowOf(main).setFocus();
    const QImage without = WindowOf(main).grab(place).toImage();
    widget.setFocus(Qt::TabFocusReason);
    EXPECT_NE(WindowOf(main).grab(place).toImage(), without) << object->name();
    WindowOf(main).setFocus();
    EXPECT_EQ(WindowOf(main).grab(place).toImage(), without) << object->name();
  }
}

TEST_F(KeyboardTest, UpIsUpOnEveryBar) {
  OpenProfile();
  const auto press = [&](auto& bar, std::initializer_list<std::pair<Qt::Key, int>> keys) {
    WidgetOf(bar).setFocus();
    for (const auto& [key, value] : keys) {
      Press(key);
      EXPECT_EQ(bar.Value, value) << bar.name();
    }
  };
  press(main.elevationBar, {{Qt::Key_Up, 339}, {Qt::Key_PageUp, 329}, {Qt::Key_Down, 330}});
  EXPECT_EQ(main.elevation.Caption, "40") << "the handler ran";
  press(main.velocityBar,
        {{Qt::Key_Up, 260}, {Qt::Key_End, 750}, {Qt::Key_PageDown, 740}, {Qt::Key_Home, 250}});
  press(main.flightTimeBar,
        {{Qt::Key_Left, 14}, {Qt::Key_PageDown, 13}, {Qt::Key_Up, 14}, {Qt::Key_Home, 1}});
  TrajectoryForm& trajectory = program.trajectory();
  Open(trajectory);
  Do([&] { trajectory.distanceSlider.Value = 50; });
  press(trajectory.distanceSlider,
        {{Qt::Key_PageUp, 55}, {Qt::Key_Left, 54}, {Qt::Key_Up, 55}, {Qt::Key_PageDown, 50}});
  press(trajectory.elevationBar, {{Qt::Key_Right, 349}, {Qt::Key_End, 290}});
}

TEST_F(KeyboardTest, ABarTakesAValueThatIsTyped) {
  OpenProfile();
  WidgetOf(main.elevationBar).setFocus();
  const auto* bubble = [&]() -> QLabel* {
    Press(Qt::Key_6);
    return WindowOf(main).findChild<ValueBubble*>();
  }();
  ASSERT_NE(bubble, nullptr);
  EXPECT_TRUE(bubble->isVisible());
  Press(Qt::Key_0);
  EXPECT_TRUE(bubble->text().startsWith("60_"));
  EXPECT_EQ(main.elevationBar.Value, 340) << "nothing is taken yet";
  Press(Qt::Key_Return);
  EXPECT_EQ(main.elevation.Caption, "60");
  EXPECT_FALSE(bubble->isVisible());

  for (const Qt::Key key : {Qt::Key_7, Qt::Key_Escape, Qt::Key_Return}) Press(key);
  EXPECT_EQ(main.elevation.Caption, "60") << "Escape took it back";
  for (const Qt::Key key : {Qt::Key_9, Qt::Key_9, Qt::Key_Enter}) Press(key);
  EXPECT_EQ(bubble->text(), "99 is out of range: 30 to 80 deg");
  EXPECT_EQ(main.elevation.Caption, "60");
  for (const Qt::Key key : {Qt::Key_4, Qt::Key_8, Qt::Key_Backspace, Qt::Key_5, Qt::Key_Enter}) Press(key);
  EXPECT_EQ(main.elevation.Caption, "45");
  for (const Qt::Key key : {Qt::Key_7, Qt::Key_Tab}) Press(key);
  EXPECT_FALSE(bubble->isVisible()) << "the focus has gone on";
  Press(Qt::Key_Return);
  EXPECT_EQ(main.elevation.Caption, "45");

  TrajectoryForm& simulator = program.trajectory();
  Open(simulator);
  WidgetOf(simulator.dragBar).setFocus();
  for (const Qt::Key key : {Qt::Key_0, Qt::Key_Period, Qt::Key_0, Qt::Key_5, Qt::Key_Return}) Press(key);
  EXPECT_EQ(simulator.dragText.Caption, "0.05");
  for (const Qt::Key key : {Qt::Key_1, Qt::Key_Escape}) Press(key);
  EXPECT_NE(session.WindowOf(simulator), nullptr) << "Escape was for the value";
  Press(Qt::Key_Escape);
  EXPECT_EQ(session.WindowOf(simulator), nullptr);
}

TEST_F(KeyboardTest, SpaceAndEnterPressWhatHasTheFocus) {
  Names heard;
  main.soundButton.Click.Bind([&] { heard.push_back("sound"); });
  main.fireButton.Click.Bind([&] { heard.push_back("fire"); });
  OpenProfile();
  for (const Object* object : Objects{&main.soundButton, &main.fireButton}) {
    WidgetOf(*object).setFocus();
    Press(Qt::Key_Space);
    Press(Qt::Key_Return);
    Press(Qt::Key_Enter, Qt::KeypadModifier);
  }
  EXPECT_EQ(heard, (Names{"sound", "sound", "sound", "fire", "fire", "fire"}));
}

TEST_F(KeyboardTest, LettersWorkTheConsoleAndNotWhatCannotBeUsed) {
  Names heard;
  main.searchButton.Click.Bind([&] { heard.push_back("search"); });
  main.fireButton.Click.Bind([&] { heard.push_back("fire"); });
  main.resetButton.Click.Bind([&] { heard.push_back("reset"); });
  for (const auto modifier : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier})
    Press(Qt::Key_S, modifier);
  EXPECT_EQ(heard, (Names{"search", "search"}));
  heard.clear();
  OpenProfile();
  Do([&] { main.resetButton.Enabled = true; });
  WidgetOf(main.elevationBar).setFocus();
  for (const Qt::Key key : {Qt::Key_F, Qt::Key_R, Qt::Key_S}) Press(key);
  EXPECT_EQ(heard, (Names{"fire", "reset"}));
  QKeyEvent held(QEvent::KeyPress, Qt::Key_F, Qt::NoModifier, "f", true);
  QApplication::sendEvent(QApplication::focusWidget(), &held);
  EXPECT_EQ(heard.size(), 2U) << "a key that is held down fires once";

  MastersForm& masters = program.masters();
  Open(masters);
  TypeAName();
  QTest::keyClicks(&WidgetOf(masters.nameBox), "F. S. Major");
  EXPECT_EQ(masters.nameBox.Text.Get(), "F. S. Major");
  EXPECT_EQ(heard.size(), 2U);
}

TEST_F(KeyboardTest, EscapeClosesSideWindowsOnly) {
  Press(Qt::Key_Escape);
  EXPECT_TRUE(main.loaded());
  Open(program.trajectory());
  Press(Qt::Key_Tab);
  Press(Qt::Key_Escape);
  EXPECT_EQ(session.WindowOf(program.trajectory()), nullptr);
  MastersForm& masters = program.masters();
  Open(masters);
  std::vector<int> keys;
  masters.nameBox.KeyPress.Bind([&](std::int16_t key) { keys.push_back(key); });
  TypeAName();
  Press(Qt::Key_Escape);
  EXPECT_EQ(keys, std::vector<int>{27});
  EXPECT_FALSE(masters.loaded()) << "also while a name is typed";
}

TEST_F(KeyboardTest, ADocumentIsReadAndCopiedWithKeys) {
  AnalysisForm& analysis = program.analysis();
  Do([&] {
    analysis.Open(HelpTopic::Rules);
    analysis.documentBox.TextRTF = std::string("{\\rtf1 one two\\par three}");
  });
  Activate(analysis);
  EXPECT_EQ(NameOfFocus(analysis), "rtbMath") << "its keys work at once";
  QGuiApplication::clipboard()->setText("before");
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "before") << "nothing is selected";
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_TRUE(analysis.copyButton.Enabled);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one");
  WidgetOf(analysis.cancelButton).setFocus();
  QGuiApplication::clipboard()->clear();
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one") << "wherever in the window the focus is";
  Do([&] { analysis.Open(HelpTopic::Rules); });
  EXPECT_EQ(NameOfFocus(analysis), "rtbMath") << "another document in the open window";
}

TEST_F(KeyboardTest, TheReadmeIsReadAndClosedWithKeys) {
  main.readmeItem.Click.Raise();
  Do([&] {
    main.readme.TextRTF = "{\\rtf1 " + [] {
      std::string lines;
      for (int i = 0; i < 100; ++i) lines += "a line\\par ";
      return lines;
    }() + "the end}";
  });
  EXPECT_EQ(NameOfFocus(main), "txtReadme");
  auto& text = WidgetOf<QTextEdit>(main.readme);
  Press(Qt::Key_PageDown);
  EXPECT_GT(text.verticalScrollBar()->value(), 0);
  Press(Qt::Key_End, Qt::ControlModifier);
  const int lastLine = text.viewport()->mapTo(&WindowOf(main), text.cursorRect().bottomLeft()).y();
  EXPECT_LT(lastLine, WidgetOf(main.closeReadmeButton).mapTo(&WindowOf(main), QPoint()).y())
      << "the button covers no line";
  Press(Qt::Key_Escape);
  EXPECT_FALSE(main.readme.Visible);
  Press(Qt::Key_Escape);
  EXPECT_TRUE(main.loaded()) << "the game itself goes on";
}

}  // namespace
}  // namespace quintara::desktop
