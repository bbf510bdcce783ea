#include <gtest/gtest.h>

#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QLineEdit>

#include <cstdlib>
#include <utility>

#include "front/zoom.h"
#include "tests/desktop/game_windows.h"
#include "tests/desktop/window_form.h"

namespace quintara::desktop {
namespace {

class ZoomTest : public WindowTest, public testing::WithParamInterface<double> {
 protected:
  // Whether the place shows a colour; thin lines turn pale where they are less than a pixel wide.
  bool Shows(int left, int top, const QColor& colour) {
    constexpr int pale = 80;
    const QColor shown = window().grab().toImage().pixelColor(Pixel(left, top));
    return std::abs(shown.red() - colour.red()) < pale && std::abs(shown.green() - colour.green()) < pale &&
           std::abs(shown.blue() - colour.blue()) < pale;
  }
};
INSTANTIATE_TEST_SUITE_P(Factors, ZoomTest, testing::Values(0.75, 1.0, 1.25, 1.5, 2.0));

TEST_P(ZoomTest, EverythingGrowsTogetherAndTheMouseHitsWhatItShows) {
  Note(form.imgFire.Click, "fire");
  Note(form.cmdPush.Click, "push");
  Do([&] {
    form.picBack.DrawWidth = 8;
    form.picBack.PSet(1050, 450, Colour(0x000000FF));
  });
  session.SetZoom(Zoom(GetParam()));
  EXPECT_EQ(window().size(), (QSizeF(600, 400) * GetParam()).toSize());
  EXPECT_TRUE(Shows(1950, 1350, QColor(255, 0, 0))) << "a dot";
  EXPECT_TRUE(Shows(1000, 660, QColor(0, 0, 255))) << "a box";
  EXPECT_TRUE(Shows(1650, 1650, QColor(255, 255, 0))) << "a shape in it";
  EXPECT_TRUE(Shows(2250, 2100, QColor(255, 0, 0))) << "a line";
  EXPECT_TRUE(Shows(8900, 5900, QColor(0, 255, 0))) << "the far corner";
  EXPECT_EQ(WidgetOf(form.txtName).font().pixelSize(), qRound(11 * GetParam()));
  EXPECT_EQ(WidgetOf(form.vsbUpside).height(), qRound(100 * GetParam()));

  const int nearEdge = 25;
  for (const auto& [left, top] :
       {std::pair(3000 + nearEdge, 300 + nearEdge), std::pair(3420 - nearEdge, 720 - nearEdge),
        std::pair(3000 + nearEdge, 900 + nearEdge), std::pair(3900 - nearEdge, 1200 - nearEdge)})
    ClickAt(left, top);
  ClickAt(3000 - nearEdge, 400);
  ClickAt(3420 + nearEdge, 400);
  EXPECT_EQ(heard, (Heard{"fire", "fire", "push", "push"}));
}

TEST_P(ZoomTest, WhatMovesLeavesNothingBehind) {
  session.SetZoom(Zoom(GetParam()));
  for (int step = 0; step < 5; ++step) {
    Do([&] {
      form.shpInBox.Left = form.shpInBox.Left - 100.0;
      form.Line1(0).Y1 = form.Line1(0).Y1 - 55.0;
      form.imgFire.Left = form.imgFire.Left + 37.0;
      form.lblBehind.Top = form.lblBehind.Top + 41.0;
      form.picBack.PSet(100 + 70.0 * step, 300, Colour(0x00FF00FF));
    });
    QCoreApplication::processEvents();
    const QImage screen = window().screen()->grabWindow(window().winId()).toImage();
    EXPECT_EQ(window().grab().toImage().convertToFormat(screen.format()), screen);
  }
}

using ScreenTest = WindowTest;

TEST_F(ScreenTest, AScreenOfFinerPixelsShowsAWindowThatComesThereAsSharpAsALargerOne) {
  Do([&] {
    form.cmdPush.Visible = false;  // the style draws its edge finer
    form.picFront.Picture = Picture{"fire", false};
    form.picBack.PSet(1050, 450, Colour(0x000000FF));
  });
  const auto picture = [&] {
    const QImage all = window().grab().toImage();
    const QRect painted(0, 0, 600, 340);
    return all.copy(painted).convertToFormat(QImage::Format_RGB32);
  };
  session.SetZoom(Zoom(2));
  const QImage larger = picture();
  session.SetZoom(Zoom());
  window().windowHandle()->setScreen(QGuiApplication::screens().back());
  QImage finer = picture();
  ASSERT_EQ(finer.devicePixelRatio(), 2);
  ASSERT_EQ(finer.size(), larger.size());
  finer.setDevicePixelRatio(1);
  EXPECT_EQ(finer, larger);
}

// A frame that leaves a pixel unpainted lets the form shine through.
TEST_F(ScreenTest, FramesHaveNoGapsOnFinerPixels) {
  window().windowHandle()->setScreen(QGuiApplication::screens().back());
  for (const Object* object : {static_cast<Object*>(&form.txtName), static_cast<Object*>(&form.lstNames),
                               static_cast<Object*>(&form.rtbText)}) {
    const QImage shown = window().grab(WidgetOf(*object).geometry()).toImage();
    const int middle = shown.height() / 2;
    for (int x = 0; x < shown.width(); ++x)
      ASSERT_NE(shown.pixelColor(x, middle), QColor(0, 255, 0)) << object->name() << " at " << x;
  }
}

using GameZoomTest = GameWindows;

TEST_F(GameZoomTest, KeysChangeTheSizeOfAllWindows) {
  Open(program.about());
  const QSize about = WindowOf(program.about()).size(), game = WindowOf(main).size();
  Press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(session.zoom(), Zoom(1.25));
  EXPECT_EQ(WindowOf(main).width(), qRound(game.width() * 1.25));
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(WindowOf(program.about()).size(), about);
  Press(Qt::Key_Minus, Qt::ControlModifier | Qt::KeypadModifier);
  EXPECT_EQ(session.zoom(), Zoom(0.9));
  Open(program.masters());
  TypeAName();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(session.zoom(), Zoom()) << "a text box has the focus";
  EXPECT_EQ(program.masters().nameBox.Text.Get(), "");
}

}  // namespace
}  // namespace quintara::desktop
