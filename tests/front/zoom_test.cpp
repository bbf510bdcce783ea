#include "front/zoom.h"

#include <gtest/gtest.h>

#include "front/placement.h"

namespace quintara {
namespace {

TEST(ZoomValueTest, StepsLeadUpAndDownAndEnd) {
  Zoom zoom;
  EXPECT_EQ(zoom.Larger(), Zoom(1.1));
  EXPECT_EQ(zoom.Smaller(), Zoom(0.9));
  for (int i = 0; i < 20; ++i) zoom = zoom.Larger();
  EXPECT_EQ(zoom, Zoom(3));
  for (int i = 0; i < 20; ++i) zoom = zoom.Smaller();
  EXPECT_EQ(zoom, Zoom(0.75));
  EXPECT_EQ(Zoom(0.94).Larger(), Zoom(1)) << "from between two steps";
}

TEST(ZoomValueTest, PlacesThatTouchGoOnTouching) {
  for (const double factor : {0.75, 0.9, 1.1, 1.25, 1.5, 1.75}) {
    const Zoom zoom(factor);
    for (int width = 1; width < 50; ++width) {
      const PixelRectangle place{3, 5, width, 9}, one = zoom(place), around = zoom.Around(place);
      EXPECT_EQ(one.right(), zoom(PixelRectangle{3 + width, 5, 20, 9}).left);
      // What is smoothed reaches into the pixels beside it.
      EXPECT_TRUE(around.left < one.left && around.top < one.top);
      EXPECT_TRUE(around.right() > one.right() && around.bottom() > one.bottom());
    }
  }
  const PixelRectangle place{3, 5, 7, 9};
  EXPECT_EQ(Zoom()(place), place);
  EXPECT_EQ(Zoom().Around(place), place);
}

constexpr PixelRectangle screen{0, 30, 1366, 738};

TEST(PlacementTest, AWindowThatFitsKeepsItsZoomAndOneThatDoesNotIsShownSmaller) {
  EXPECT_EQ(FittingZoom(Zoom(1.25), {600, 400}, screen), Zoom(1.25));
  const Zoom fitting = FittingZoom(Zoom(), {1015, 713}, screen);
  EXPECT_EQ(fitting(713) + windowFrame.height, screen.height) << "to the last pixel";
  EXPECT_EQ(FittingZoom(Zoom(), {3000, 10}, screen), Zoom((1366.0 - 8) / 3000));
  EXPECT_GT(FittingZoom(Zoom(), {0, 0}, screen).factor(), 0) << "a form without room has a window, too";
}

TEST(PlacementTest, EveryWindowCanBeTakenHoldOf) {
  EXPECT_EQ(WithinReach({200, 100}, 600, screen), (PixelPoint{200, 100}));
  EXPECT_EQ(WithinReach({-5000, -5000}, 600, screen), (PixelPoint{80 - 600, 30}));
  EXPECT_EQ(WithinReach({5000, 5000}, 600, screen), (PixelPoint{1365 - 80, 767 - 40}));
  EXPECT_EQ(WhollySeen({5000, 5000}, {600, 400}, screen), (PixelPoint{1365 - 600, 767 - 400}));
  EXPECT_EQ(WhollySeen({5000, 5000}, {2000, 2000}, screen), (PixelPoint{0, 30})) << "its title, at least";
}

TEST(PlacementTest, NoThinStripShowsBehindABox) {
  EXPECT_EQ(ReachingEdges({0, 280, 481, 57}, {477, 339}), (PixelRectangle{0, 280, 481, 59}));
  EXPECT_EQ(ReachingEdges({0, 280, 481, 56}, {484, 339}), (PixelRectangle{0, 280, 481, 56}))
      << "a strip of three";
}

}  // namespace
}  // namespace quintara
