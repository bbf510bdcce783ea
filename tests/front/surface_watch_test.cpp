#include "front/surface_watch.h"

#include <gtest/gtest.h>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

class SurfaceWatchTest : public testing::Test, public TrialScene {
 protected:
  SurfaceWatchTest() { watch.Look(); }

  SurfaceWatch watch{form.Picture1};
};

using Objects = std::vector<const Object*>;

TEST_F(SurfaceWatchTest, EachChangeIsSeenOnce) {
  EXPECT_TRUE(SurfaceWatch(form.Picture1).Look().children) << "the first look";
  form.Ring.Left = 20;
  form.Ring.Visible = false;
  form.Button.Visible = form.Button.Visible.Get();
  form.Push.Enabled = false;
  SurfaceChanges changes = watch.Look();
  EXPECT_FALSE(changes.children);
  EXPECT_EQ(changes.objects, Objects{&form.Ring})
      << "not what was written as it was, nor what lies elsewhere";
  EXPECT_EQ(watch.Look().objects, Objects{});
  form.Label1.Load(1);
  EXPECT_TRUE(watch.Look().children);
  form.Label1.Unload(1);
  EXPECT_TRUE(watch.Look().children);
  watch.Forget();
  EXPECT_TRUE(watch.Look().children);
}

TEST_F(SurfaceWatchTest, MarksAreCountedFromTheLastLook) {
  form.Picture1.PSet(10, 10);
  EXPECT_EQ(watch.Look().firstNewMark, 0u);
  form.Picture1.PSet(20, 10);
  SurfaceChanges changes = watch.Look();
  EXPECT_FALSE(changes.wiped);
  EXPECT_EQ(changes.firstNewMark, 1u);
  EXPECT_EQ(watch.Look().firstNewMark, form.Picture1.dots().size());
  form.Picture1.Cls();
  form.Picture1.PSet(30, 10);
  form.Picture1.PSet(40, 10);
  changes = watch.Look();
  EXPECT_TRUE(changes.wiped) << "though there are as many marks as before";
  EXPECT_EQ(changes.firstNewMark, 0u);
}

}  // namespace
}  // namespace quintara
