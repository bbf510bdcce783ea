#include "scene/input.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

class InputTest : public ::testing::Test, protected TrialScene {
 protected:
  InputTest() {
    Note(form.Button.Click, "click Button");
    Note(form.Button.MouseMove, "move Button");
    Note(form.Picture1.MouseMove, "move Picture1");
    Note(form.Push.Click, "click Push");
    Note(form.Push.MouseMove, "move Push");
    Note(form.Open.Click, "click Open");
  }
  void Note(Event<>& event, const char* what) {
    event.Bind([this, what] { heard.push_back(what); });
  }

  std::vector<std::string> heard;
};

using Heard = std::vector<std::string>;

TEST_F(InputTest, TheFrontMostEnabledObjectTakesTheMouse) {
  EXPECT_EQ(ObjectAt(form, 300 + 1600, 300 + 1600), &form.Button);
  EXPECT_EQ(ObjectAt(form, 300 + 2999, 300 + 2999), &form.Picture1)
      << "a picture box hides what lies behind it";
  EXPECT_EQ(ObjectAt(form, 299, 299), &form);
  EXPECT_EQ(ObjectAt(form, 6599, 400), &form.Open);
  EXPECT_EQ(ObjectAt(form, 6600, 400), &form) << "the right edge is outside";
  EXPECT_EQ(ObjectAt(form, 6100, 1250), &form.Caption1);
  form.Picture1.Visible = false;
  EXPECT_EQ(ObjectAt(form, 300 + 1600, 300 + 1600), &form.Behind);
  form.Behind.Enabled = false;
  EXPECT_EQ(ObjectAt(form, 300 + 1600, 300 + 1600), &form) << "a disabled image lets it through";
  form.ScaleMode = 3;
  EXPECT_EQ(ObjectAt(form, 6001, 301), &form.Open) << "whatever the scale";
}

TEST_F(InputTest, AMoveGoesToWhatReceivesTheMouseThere) {
  UserMovesOnto(form.Button);
  UserMovesOnto(form.Ring);
  form.Button.Enabled = false;
  UserMovesOnto(form.Button);
  UserMovesOnto(form.Label1(0));
  EXPECT_EQ(heard, (Heard{"move Button", "move Picture1", "move Picture1"}));
  form.Picture1.Visible = false;
  EXPECT_EQ(UserMovesOnto(form.Button), InputResult::NoTarget);
}

TEST_F(InputTest, AClickNeedsATarget) {
  EXPECT_EQ(UserClicks(form.Button), InputResult::Done);
  form.Button.Enabled = false;
  EXPECT_EQ(UserClicks(form.Button), InputResult::NoTarget);
  form.Button.Enabled = true;
  form.Picture1.Visible = false;
  EXPECT_EQ(UserClicks(form.Button), InputResult::NoTarget) << "hidden with its container";
  other.Touch();
  EXPECT_EQ(UserClicks(other.Push), InputResult::NoTarget) << "loaded but not shown";
  EXPECT_EQ(UserClicks(form.Behind), InputResult::Done) << "no handler, and no harm";
  EXPECT_EQ(heard, Heard{"click Button"});
}

TEST_F(InputTest, InputThatCameDuringAHandlerWaitsAndIsCheckedWhenItsTurnComes) {
  form.Push.Click.Bind([&] {
    heard.push_back("begin");
    EXPECT_EQ(UserClicks(form.Open), InputResult::Done);
    UserClicks(form.Button);
    UserMovesOnto(form.Push);
    UserDragsTo(form.Bar, 3);
    UserPressesArrow(form.Bar, BarEnd::Min);
    UserDragsTo(form.Ruled, 3);
    UserPressesTrough(form.Ruled, BarEnd::Max);
    UserTypes(form.Entry, 'x');
    UserEdits(form.Entry, "xy");
    UserSelects(form.Document, 0, 1);
    dispatcher.AdvanceTo(1000);
    form.Button.Enabled = false;
    for (Box* box :
         std::initializer_list<Box*>{&form.Push, &form.Bar, &form.Ruled, &form.Entry, &form.Document})
      box->Visible = false;
    heard.push_back("end");
  });
  UserClicks(form.Push);
  EXPECT_EQ(heard, (Heard{"begin", "end", "click Open"}));
  EXPECT_TRUE(form.Bar.Value == 15 && form.Ruled.Value == 0 && form.Entry.Text == "");
  EXPECT_EQ(dispatcher.now(), 0) << "nor does time pass for ticks while a handler runs";
}

TEST_F(InputTest, BarsMoveTowardsTheEndThatIsPressed) {
  std::vector<int> values;
  form.Upside.Change.Bind([&] { values.push_back(form.Upside.Value); });
  UserPressesArrow(form.Upside, BarEnd::Max);  // stands there already
  UserPressesArrow(form.Upside, BarEnd::Min);
  UserPressesTrough(form.Upside, BarEnd::Min);
  UserDragsTo(form.Upside, 745);
  UserPressesTrough(form.Upside, BarEnd::Min);
  UserPressesTrough(form.Upside, BarEnd::Max);
  UserDragsTo(form.Upside, 690);
  EXPECT_EQ(values, (std::vector<int>{260, 320, 745, 750, 690}))
      << "it stops at its ends and raises no idle Change";
  form.Upside.Enabled = false;
  EXPECT_EQ(UserPressesArrow(form.Upside, BarEnd::Max), InputResult::NoTarget);
}

TEST_F(InputTest, ASliderScrollsForTheUser) {
  int scrolls = 0;
  form.Ruled.Scroll.Bind([&] { ++scrolls; });
  UserDragsTo(form.Ruled, 0);
  EXPECT_EQ(scrolls, 1) << "also when it holds the value already";
  UserPressesTrough(form.Ruled, BarEnd::Min);
  EXPECT_EQ(scrolls, 1) << "at its end there is nothing to scroll";
  UserPressesTrough(form.Ruled, BarEnd::Max);
  EXPECT_EQ(form.Ruled.Value, 30);
  EXPECT_EQ(scrolls, 2);
}

TEST_F(InputTest, KeysArriveBeforeTheirEffectAndAreLostOnceTheBoxIsHidden) {
  std::string texts;
  form.Entry.KeyPress.Bind([&](std::int16_t key) {
    texts += form.Entry.Text.Get() + "|";
    if (key == 'z') form.Entry.Visible = false;
  });
  for (const int key : {int{'A'}, 0xE9, 0x1F600, 27, 8, int{'z'}}) UserTypes(form.Entry, key);
  EXPECT_EQ(texts, "|A|A\xC3\xA9|A\xC3\xA9\xF0\x9F\x98\x80|A\xC3\xA9\xF0\x9F\x98\x80|A\xC3\xA9|");
  EXPECT_EQ(form.Entry.Text, "A\xC3\xA9") << "8 takes away one character, not one byte";
  EXPECT_EQ(UserTypes(form.Entry, 'x'), InputResult::NoTarget);

  form.Entry.Visible = true;
  form.Entry.Text = "";
  for (const int key : {8, 0x20AC, 127, 0xD800, 0xDFFF, 0x110000}) UserTypes(form.Entry, key);
  EXPECT_EQ(form.Entry.Text, "\xE2\x82\xAC") << "an empty box, and what is no character";
  UserEdits(form.Entry, "Ada\r\nLovelace");
  EXPECT_EQ(form.Entry.Text, "Ada  Lovelace") << "pasted line breaks become blanks";
}

TEST_F(InputTest, ASelectionIsCutToTheText) {
  int changes = 0;
  form.Document.SelChange.Bind([&] { ++changes; });
  form.Document.TextRTF = "{\\rtf1\\ansi Gr\\'fc\\'dfe}";
  UserSelects(form.Document, 1, 3);
  EXPECT_EQ(form.Document.SelText(), "r\xC3\xBC\xC3\x9F");
  UserSelects(form.Document, 3, 1000);
  EXPECT_EQ(form.Document.SelLength(), 2);
  UserSelects(form.Document, 1000, 5);
  EXPECT_EQ(form.Document.SelText(), "");
  EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace quintara
