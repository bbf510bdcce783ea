#include "front/window_place.h"

#include <gtest/gtest.h>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

constexpr PixelRectangle wide{0, 0, 1920, 1080}, narrow{0, 0, 640, 360};

class WindowPlaceTest : public testing::Test, public TrialScene {
 protected:
  WindowPlace window{form, Zoom()};
};

TEST_F(WindowPlaceTest, TheWindowGoesWhereTheFormSaysAndTheFormLearnsWhereTheUserPutsIt) {
  form.Left = 3000;
  form.Top = 1500;
  EXPECT_TRUE(window.Follow(Zoom(), {wide, wide}, false));
  EXPECT_EQ(window.place(), (PixelPoint{200, 100}));
  EXPECT_EQ(window.size(), (PixelSize{600, 400}));
  EXPECT_FALSE(window.Follow(Zoom(), {wide, wide}, true));
  window.MovedTo({210, 100});
  EXPECT_EQ(form.Left, 3150.0);
  EXPECT_EQ(form.Top, 1500.0);
  EXPECT_FALSE(window.Follow(Zoom(), {wide, wide}, true)) << "it is there already";
  form.Top = -99999;
  EXPECT_TRUE(window.Follow(Zoom(), {wide, wide}, true));
  EXPECT_EQ(window.place(), (PixelPoint{210, 0})) << "within reach, whatever the form says";
}

TEST_F(WindowPlaceTest, WithTheDeskAWindowGrowsWhereItStandsAsFarAsItsScreenHasRoom) {
  window.Follow(Zoom(), {wide, wide}, false);
  window.MovedTo({300, 200});
  EXPECT_TRUE(window.Follow(Zoom(2), {wide, wide}, true));
  EXPECT_EQ(window.place(), (PixelPoint{300, 200}));
  EXPECT_EQ(form.Left, 2250.0) << "half as far on a desk twice as large";
  EXPECT_EQ(window.size(), (PixelSize{1200, 800}));
  EXPECT_TRUE(window.Follow(Zoom(2), {narrow, wide}, true)) << "on another screen";
  EXPECT_EQ(window.zoom(), Zoom(320.0 / 400));
  EXPECT_EQ(window.place(), (PixelPoint{639 - 480 - 8, 0})) << "it is seen whole";
}

TEST_F(WindowPlaceTest, WhatStandsBelowTheFormTakesNoRoomFromIt) {
  window.SetFooter(24);
  window.Follow(Zoom(2), {wide, wide}, false);
  EXPECT_EQ(window.surfaceSize(), (PixelSize{1200, 800}));
  EXPECT_EQ(window.size(), (PixelSize{1200, 848}));
  window.Follow(Zoom(2), {narrow, wide}, true);
  EXPECT_EQ(window.zoom(), Zoom(320.0 / 424)) << "both are seen whole";
}

}  // namespace
}  // namespace quintara
