#include <gtest/gtest.h>

#include <QtCore/QCoreApplication>
#include <QtGui/QFontMetricsF>
#include <QtGui/QScreen>

#include <limits>

#include "desktop/appearance.h"
#include "front/caption_lines.h"
#include "tests/desktop/window_form.h"

namespace quintara::desktop {
namespace {

const QColor green(0, 255, 0), blue(0, 0, 255), red(255, 0, 0), yellow(255, 255, 0), white(255, 255, 255);

class PaintingTest : public WindowTest {
 protected:
  // Whether all that changed was repainted by now; a grab repaints of its own accord.
  bool ScreenIsUpToDate() {
    QCoreApplication::processEvents();
    const QImage screen = window().screen()->grabWindow(window().winId()).toImage();
    return window().grab().toImage().convertToFormat(screen.format()) == screen;
  }
  struct Spot {
    int left, top;
    QColor colour;
  };
  void ExpectColours(std::initializer_list<Spot> spots) {
    for (const auto& [left, top, colour] : spots)
      EXPECT_EQ(ColourAt(left, top), colour) << left << ", " << top;
  }
};

TEST_F(PaintingTest, WhatHasASurfaceHidesWhatLiesBehind) {
  ExpectColours({{150, 2700, green},
                 {150, 660, red},
                 {1000, 660, blue},   // a box hides the labels of its container
                 {1200, 1050, blue},  // the box listed first is in front
                 {2000, 1050, white},
                 {1650, 1650, yellow},
                 {1950, 1650, white},  // a box clips what it holds
                 {2250, 2100, red}});
  Do([&] { form.picFront.Visible = false; });
  ExpectColours({{1000, 660, red}, {1200, 1050, white}});
}

TEST_F(PaintingTest, ChangesAreRepaintedAndLeaveNothingBehind) {
  ASSERT_TRUE(ScreenIsUpToDate());
  Do([&] {
    form.shpInBox.Left = 300.0;
    form.shpInBox.Width = 300.0;
    form.picBack.Left = 3300.0;
    form.Line1.Load(1);
    form.Line1(1).Y1 = form.Line1(1).Y2 = 600.0;
    form.Line1(1).Visible = true;
  });
  EXPECT_TRUE(ScreenIsUpToDate());
  ExpectColours({{1650, 1650, blue}, {700, 1700, yellow}, {4500, 1500, red}});

  Do([&] {
    form.Line1.Unload(1);
    form.imgFire.Visible = false;
    form.BackColor = 0x00FF0000;
  });
  EXPECT_TRUE(ScreenIsUpToDate());
  ExpectColours({{4500, 1500, white}, {3210, 510, blue}});
}

TEST_F(PaintingTest, ALineThatRisesByLessThanAPixelIsSharp) {
  session.SetZoom(Zoom(1.5));
  const QImage level = window().grab().toImage();
  Do([&] { form.Line1(0).Y2 = 1206.0; });
  EXPECT_EQ(window().grab().toImage(), level);
}

TEST_F(PaintingTest, DotsStayUntilTheyAreWiped) {
  Do([&] {
    form.picBack.DrawWidth = 2;
    for (int i = 0; i < 3000; ++i) form.picBack.PSet(900 + i * 0.1, 450, Colour(0x000000FF));
    form.PSet(150, 3000, Colour(0x000000FF));
  });
  Do([&] { form.picBack.PSet(1050, 750, Colour(0x0000FF00)); });
  EXPECT_TRUE(ScreenIsUpToDate());
  ExpectColours({{2010, 1350, red}, {1950, 1650, green}, {150, 3000, red}});

  Do([&] {
    form.picBack.Cls();
    form.picBack.PSet(300, 450, Colour(0x000000FF));
  });
  EXPECT_TRUE(ScreenIsUpToDate());
  ExpectColours({{2010, 1350, white}, {150, 3000, red}});  // another surface
}

TEST_F(PaintingTest, PlacesBeyondAllBoundsAreHarmless) {
  const double huge = 3e38;
  Do([&] {
    form.shpInBox.Left = huge;
    form.shpInBox.Width = -5.0;
    form.Line1(0).X2 = huge;
    form.Line1(0).Y2 = std::numeric_limits<double>::quiet_NaN();
    form.picFront.Left = -huge;
    form.lblBehind.Height = huge;
    form.imgOver.Width = huge;
  });
  EXPECT_TRUE(ScreenIsUpToDate());
}

TEST_F(PaintingTest, TheLookOfTheSystemStaysOutside) {
  EXPECT_EQ(ColourAt(3030, 1160), QColor(0xC0, 0xC0, 0xC0)) << "the face of a button";
  EXPECT_EQ(ToQFont({"MS Sans Serif", 8.25}).pixelSize(), 11);
  // A caption that is wider than its button is drawn smaller.
  Do([&] { form.cmdPush.Caption = "A long caption"; });
  const QWidget& button = WidgetOf(form.cmdPush);
  EXPECT_LE(button.fontMetrics().horizontalAdvance("A long caption"), 60);
  Do([&] { form.cmdPush.Caption = "Push"; });
  EXPECT_EQ(button.font().pixelSize(), 11);
}

}  // namespace
}  // namespace quintara::desktop
