#include <gtest/gtest.h>

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QTextCursor>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTextEdit>

#include "desktop/value_bubble.h"
#include "tests/desktop/window_form.h"

namespace quintara::desktop {
namespace {

class InputTest : public WindowTest {
 protected:
  InputTest() {
    Note(form.imgFire.Click, "fire");
    Note(form.imgFire.MouseMove, "over fire");
    Note(form.imgOver.MouseMove, "over image");
    Note(form.picFront.MouseMove, "over box");
    Note(form.cmdPush.Click, "push");
    Note(form.cmdPush.MouseMove, "over push");
  }

  void MoveTo(int left, int top) {
    QWidget* widget = window().childAt(Pixel(left, top));
    QTest::mouseMove(widget, widget->mapFrom(&window(), Pixel(left, top)));
  }
};

TEST_F(InputTest, AClickOnAnImageIsAPressAndAReleaseOverIt) {
  ClickAt(3100, 400);
  EXPECT_EQ(heard, Heard{"fire"});
  QTest::mousePress(&window().surface(), Qt::LeftButton, {}, Pixel(3100, 400));
  QTest::mouseRelease(&window().surface(), Qt::LeftButton, {}, Pixel(2900, 400));
  QTest::mousePress(&window().surface(), Qt::LeftButton, {}, Pixel(2900, 400));
  QTest::mouseRelease(&window().surface(), Qt::LeftButton, {}, Pixel(3100, 400));
  QTest::mouseClick(&window().surface(), Qt::RightButton, {}, Pixel(3100, 400));
  Do([&] { form.imgFire.Enabled = false; });
  ClickAt(3100, 400);
  EXPECT_EQ(heard, Heard{"fire"});
  EXPECT_NE(ColourAt(3210, 510), QColor(0, 255, 0)) << "it is still there";
  const QColor off = ColourAt(3210, 510);
  EXPECT_LT(off.saturation(), 10) << "and pale";
}

TEST_F(InputTest, MovesReachWhatIsUnderThePointer) {
  MoveTo(400, 400);
  MoveTo(1000, 1000);
  MoveTo(3210, 510);
  MoveTo(3100, 1000);
  EXPECT_EQ(heard, (Heard{"over image", "over box", "over fire", "over push"}));
  heard.clear();
  MoveTo(3100, 1000);
  EXPECT_EQ(heard, Heard{}) << "the pointer rests";

  Do([&] { form.imgOver.Enabled = false; });
  MoveTo(400, 400);
  EXPECT_EQ(heard, Heard{"over box"}) << "a disabled image lets the mouse through";
}

TEST_F(InputTest, ANotchOfTheWheelIsOneSmallStepUpwards) {
  const auto turn = [](QWidget& bar, int angle) {
    const QPointF middle = bar.rect().center();
    QWheelEvent wheel(middle, bar.mapToGlobal(middle), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&bar, &wheel);
  };
  auto& bar = WidgetOf<QScrollBar>(form.vsbUpside);
  turn(bar, 120);
  EXPECT_EQ(form.vsbUpside.Value, 260);
  turn(bar, 240);
  turn(bar, -120);
  EXPECT_EQ(form.vsbUpside.Value, 270);
  auto& slider = WidgetOf<QSlider>(form.sldRuled);
  for (const int part : {60, 60, 60}) turn(slider, part);
  EXPECT_EQ(form.sldRuled.Value, 13);
  turn(slider, -1200);
  EXPECT_EQ(form.sldRuled.Value, 10);
}

TEST_F(InputTest, AThumbThatIsDraggedSetsTheValueWhenItIsLetGo) {
  auto& bar = WidgetOf<QScrollBar>(form.vsbUpside);
  Note(form.vsbUpside.Change, "change");
  ASSERT_EQ(bar.value(), bar.maximum()) << "250 is the bottom end";
  bar.setSliderDown(true);
  bar.setSliderPosition(200);
  EXPECT_EQ(heard, Heard{});
  const auto* bubble = window().findChild<ValueBubble*>();
  ASSERT_NE(bubble, nullptr);
  EXPECT_TRUE(bubble->isVisible());
  EXPECT_EQ(bubble->text(), "550") << "what it would be";
  EXPECT_TRUE(window().rect().contains(bubble->geometry()));
  bar.setSliderDown(false);
  EXPECT_FALSE(bubble->isVisible());
  EXPECT_EQ(heard, Heard{"change"});
  EXPECT_EQ(form.vsbUpside.Value, 550);

  auto& slider = WidgetOf<QSlider>(form.sldRuled);
  Note(form.sldRuled.Scroll, "scroll");
  slider.setSliderDown(true);
  slider.setSliderPosition(5);
  EXPECT_EQ(form.sldRuled.Value, 15) << "a slider tells while it is dragged";
  slider.setSliderDown(false);
  Do([&] { form.sldRuled.Value = 20; });
  EXPECT_EQ(heard, (Heard{"change", "scroll"})) << "what code writes is no scroll";
}

TEST_F(InputTest, KeysAndEditsReachTheTextBox) {
  std::vector<int> keys;
  form.txtName.KeyPress.Bind([&](std::int16_t key) { keys.push_back(key); });
  Do([&] { form.txtName.SetFocus(); });
  auto& edit = WidgetOf<QLineEdit>(form.txtName);
  EXPECT_TRUE(edit.hasFocus());
  QTest::keyClicks(&edit, "ac?");
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QTest::keyClick(&edit, Qt::Key_Return);
  EXPECT_EQ(keys, (std::vector<int>{'a', 'c', '?', 8, 13}));
  QTest::keyClick(&edit, Qt::Key_Left);
  QTest::keyClicks(&edit, "b");
  EXPECT_EQ(form.txtName.Text.Get(), "abc");
  EXPECT_EQ(edit.cursorPosition(), 2);
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QTest::keyClick(&edit, Qt::Key_Delete);
  EXPECT_EQ(form.txtName.Text.Get(), "a");
  QGuiApplication::clipboard()->setText(QString::fromUtf8("\u00FCber\nall"));
  edit.selectAll();
  QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(form.txtName.Text.Get(), "\u00FCber all");
}

TEST_F(InputTest, ASelectionIsCountedInWholeCharacters) {
  Do([&] { form.rtbText.TextRTF = std::string("{\\rtf1 a\\u-10179?\\u-8704?b\\par \\b cde}"); });
  auto& text = WidgetOf<QTextEdit>(form.rtbText);
  ASSERT_EQ(text.toPlainText().toStdString(), form.rtbText.PlainText());
  Note(form.rtbText.SelChange, "selected");
  QTextCursor cursor = text.textCursor();
  cursor.setPosition(3);
  cursor.setPosition(7, QTextCursor::KeepAnchor);
  text.setTextCursor(cursor);
  EXPECT_EQ(form.rtbText.SelStart(), 2);
  EXPECT_EQ(form.rtbText.SelText(), "b\ncd");
  EXPECT_EQ(heard, Heard{"selected"});
  Do([&] { form.rtbText.Select(1, 2); });
  EXPECT_EQ(text.textCursor().selectionStart(), 1);
  EXPECT_EQ(text.textCursor().selectionEnd(), 4);
}

TEST_F(InputTest, AListOfManyLinesIsShownAtOnce) {
  QElapsedTimer time;
  time.start();
  Do([&] {
    for (int i = 0; i < 400'000; ++i) form.lstNames.AddItem("a line of some twenty");
    form.lstNames.AddItem(std::string(1 << 20, 'x'));
  });
  QTest::qWait(0);
  auto& list = WidgetOf<QListView>(form.lstNames);
  EXPECT_EQ(list.model()->rowCount(), 400'001);
  EXPECT_LT(time.elapsed(), 5000);
  list.verticalScrollBar()->setValue(1000);
  Do([&] { form.lstNames.AddItem("one more"); });
  EXPECT_EQ(list.verticalScrollBar()->value(), 1000) << "it stays where the user has scrolled to";
}

}  // namespace
}  // namespace quintara::desktop
