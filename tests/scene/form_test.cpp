#include "scene/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

using Log = std::vector<std::string>;

class FormTest : public ::testing::Test, protected TrialScene {};

TEST_F(FormTest, TheFirstTouchLoadsAndShowShows) {
  FormHandle<TrialForm> handle(other);
  EXPECT_FALSE(handle.loaded());
  handle->Caption = "touched";
  EXPECT_EQ(other.loads, 1);
  EXPECT_FALSE(other.IsVisible());
  EXPECT_TRUE(platform.log.empty());
  handle->Show();
  EXPECT_EQ(other.loads, 1);
  handle->Show();
  EXPECT_EQ(platform.log, (Log{"show Other", "show Other"}));
  EXPECT_EQ(other.Caption, "touched");
}

TEST_F(FormTest, UnloadedAndTouchedAgainInsideItsOwnHandlerItHasItsStartValues) {
  FormHandle<TrialForm> self(other);
  other.Show();
  other.member = 42;
  other.ScaleMode = 3;
  other.Line1.Load(3);
  other.Names.AddItem("entry");
  EXPECT_EQ(other.Names.List(0) + other.Names.List(-1) + other.Names.List(1), "entry");
  other.Document.TextRTF = "{\\rtf1 text}";
  other.Picture1.PSet(10, 10);
  other.Entry.SetFocus();
  other.Push.Click.Bind([&] {
    other.Push.Caption = "before";
    self.Unload();
    self->Push.Enabled = false;  // loads the form again, hidden
  });
  platform.log.clear();
  EXPECT_EQ(UserClicks(other.Push), InputResult::Done);
  EXPECT_EQ(platform.log, Log{"unload Other"});
  EXPECT_TRUE(other.loaded() && !other.IsVisible());
  EXPECT_EQ(other.loads, 2);
  EXPECT_EQ(other.member, 42) << "the form's own variables are kept";
  EXPECT_EQ(other.Push.Caption, "Push");
  EXPECT_FALSE(other.Push.Enabled);
  EXPECT_EQ(other.ScaleMode, 1);
  EXPECT_EQ(other.objects().size(), form.objects().size());
  EXPECT_EQ(other.children().size(), form.children().size());
  EXPECT_EQ(other.Names.ListCount(), 0);
  EXPECT_EQ(other.Document.PlainText(), "");
  EXPECT_TRUE(other.Picture1.dots().empty());
  EXPECT_EQ(other.focus(), nullptr);
}

TEST_F(FormTest, TheProgramEndsWithTheLastForm) {
  other.Show();
  form.onQueryUnload = [&] {
    form.Unload();  // already on its way
    other.Unload();
  };
  platform.log.clear();
  EXPECT_EQ(UserCloses(form), InputResult::Done);
  EXPECT_EQ(platform.log, (Log{"unload Other", "unload Trial", "end"}));
  EXPECT_TRUE(scene.ended());
  other.Unload();
  form.Show();
  EXPECT_EQ(platform.log.size(), 3u) << "nothing comes back";
}

TEST_F(FormTest, LoadedElementsAreHiddenCopiesInFrontOfTheirKind) {
  form.Line1(0).X1 = 5;
  form.Line1(0).BorderColor = 0x00112233;
  form.Line1.Load(2);
  form.Line1.Load(1);
  const Line& line = form.Line1(1);
  EXPECT_FALSE(line.Visible);
  EXPECT_EQ(line.X1, 5);
  EXPECT_EQ(line.BorderColor.Get(), Colour(0x00112233));
  EXPECT_EQ(FullName(line), "Line1(1)");

  const auto placeOf = [](const auto& list, const Object& object) {
    return std::find(list.begin(), list.end(), &object) - list.begin();
  };
  EXPECT_LT(placeOf(form.children(), line), placeOf(form.children(), form.Line1(2)));
  EXPECT_LT(placeOf(form.children(), form.Line1(2)), placeOf(form.children(), form.Line1(0)));
  EXPECT_EQ(placeOf(form.objects(), line), placeOf(form.objects(), form.Line1(0)) + 1);
  EXPECT_EQ(placeOf(form.objects(), form.Line1(2)), placeOf(form.objects(), form.Line1(0)) + 2);

  form.Label1.Load(1);
  EXPECT_EQ(form.Label1(1).container(), &form.Picture1) << "it lies in the container of element 0";
  form.Line1.Load(1);
  EXPECT_EQ(&form.Line1(1), &line) << "an element that exists is left as it is";
  form.Line1.Load(-1);
  form.Line1.Unload(1);
  form.Line1.Unload(1);
  form.Line1.Unload(0);
  EXPECT_TRUE(form.Line1.Has(0));
  EXPECT_THROW(form.Line1(1), std::runtime_error);
  EXPECT_THROW(form.Line1(-1), std::runtime_error);
}

TEST_F(FormTest, AChangeOfScaleMovesNothing) {
  form.ScaleMode = 3;
  EXPECT_EQ(form.ScaleMode, 3);
  EXPECT_EQ(form.Open.Left, 400);
  EXPECT_EQ(form.ScaleWidth, 600);
  EXPECT_EQ(form.Button.Left, 1500) << "only direct children are counted anew";
  form.ScaleWidth = 9000;
  EXPECT_EQ(form.ScaleMode, 0);
  EXPECT_EQ(form.Open.Left, 6000);
  EXPECT_EQ(form.Open.Top, 20) << "the other axis keeps its pixels";
  form.ScaleHeight = 12000;
  EXPECT_EQ(form.Open.Top, 600);
  form.Open.Top = 1200;
  EXPECT_EQ(form.Open.Surface().top, 600);
  EXPECT_EQ(form.ScaleHeight, 12000);

  form.ScaleHeight = 0;
  form.ScaleHeight = -1;
  form.ScaleHeight = 1e300;
  form.ScaleMode = 2;
  EXPECT_EQ(form.ScaleHeight, 12000) << "scales that count nothing are not taken";
  form.Width = 0.0;
  form.ScaleWidth = 100;
  EXPECT_EQ(form.Open.Left, 6000);
}

TEST_F(FormTest, ThousandsOfChangesOfScaleDoNotDrift) {
  form.Open.Left = 1234.567;
  form.Ruler.Y2 = 0.1;
  const Rectangle start = form.Open.Surface();
  for (int i = 0; i < 5000; ++i) {
    form.ScaleMode = 3;
    form.ScaleWidth = 90000 + i * 0.37;
    form.ScaleHeight = 70001;
    EXPECT_EQ(form.Open.Surface().left, start.left);
  }
  form.ScaleMode = 1;
  EXPECT_EQ(form.Open.Left, Single(1234.567));
  EXPECT_EQ(form.Ruler.Y2, Single(0.1));
  form.ScaleMode = 0;
  form.Width = form.Width + 1000;
  EXPECT_EQ(form.ScaleWidth, 10000) << "a user scale keeps its unit when the form grows";
}

TEST_F(FormTest, DotsStayUntilClsAndAreClipped) {
  PictureBox& box = form.Picture1;
  box.ForeColor = 0x00445566;
  box.PSet(100, 200);
  box.DrawWidth = 2;
  box.PSet(-14, 10, QBColor(6));
  box.PSet(-15, 10);
  box.PSet(3014, 10);
  box.PSet(3015, 10);
  ASSERT_EQ(box.dots().size(), 3u);
  EXPECT_TRUE(box.dots()[0].colour == 0x00445566 && box.dots()[0].width == 1);
  EXPECT_TRUE(box.dots()[1].colour == 0x00008080 && box.dots()[1].width == 2 && box.dots()[1].x == -14);
  box.Cls();
  EXPECT_TRUE(box.dots().empty());

  form.ScaleMode = 3;
  form.PSet(599, 0);
  form.PSet(601, 0);
  ASSERT_EQ(form.dots().size(), 1u) << "clipped by the inner area, in the scale in force";
  EXPECT_EQ(form.dots()[0].leftTwips, 599 * 15);
}

TEST_F(FormTest, AScrollBarRaisesChangeOnlyForAnotherValue) {
  std::vector<int> values;
  form.Bar.Change.Bind([&] { values.push_back(form.Bar.Value); });
  form.Bar.Value = 15;
  EXPECT_TRUE(values.empty());
  form.Bar.Value = 14;
  EXPECT_EQ(values, std::vector<int>{14});
  form.Bar.Value = -5;
  form.Bar.Value = 0;
  EXPECT_EQ(values, (std::vector<int>{14, 1})) << "kept within its ends";
  form.Ruled.Scroll.Bind([&] { values.push_back(-1); });
  form.Ruled.Value = 50;
  EXPECT_EQ(values.size(), 2u) << "a slider written from code raises nothing";
}

TEST_F(FormTest, OnlyWhatIsShownAndOnCanBeChosenFromAMenu) {
  EXPECT_TRUE(form.mnuItem.CanBeChosen());
  form.mnuItem.Visible = false;
  EXPECT_FALSE(form.mnuItem.CanBeChosen() || form.mnuDivider.CanBeChosen() || form.mnuOff.CanBeChosen());
}

TEST(PropertyTest, ATextIsComparedCharacterByCharacter) {
  Properties properties;
  Property<std::string> shots(properties, "10");
  EXPECT_TRUE(shots < "5");
  EXPECT_FALSE(shots == "5");
  shots = "10";
  EXPECT_EQ(properties.changes(), 0u) << "the same text is no change";
  shots = "\xC3\xA9";
  EXPECT_TRUE(shots > "z") << "bytes count as unsigned";
  EXPECT_EQ(properties.changes(), 1u);
}

}  // namespace
}  // namespace quintara
