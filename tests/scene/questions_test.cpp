#include <gtest/gtest.h>

#include "tests/scene/scene_form.h"

namespace quintara {
namespace {

// A platform, such as a page, whose user takes time to reply.
class QuestionsTest : public testing::Test, public TrialScene {
 protected:
  QuestionsTest() { platform.repliesLater = true; }

  void Hear(const std::string& what) { heard.push_back(what); }
  void Ask(const std::string& text, Form& asker) {
    scene.Ask({text, "Title", MessageBox::Buttons::YesAndNo}, asker,
              [this, text](Answer answer) { Hear(text + (answer == Answer::Yes ? " yes" : " no")); });
  }

  std::vector<std::string> heard;
};

TEST_F(QuestionsTest, NothingTicksAndInputWaitsUntilTheReply) {
  platform.boxAnswers = {Answer::Yes};
  form.Clock.Interval = 10;
  form.Clock.Enabled = true;
  form.Clock.Tick.Bind([&] {
    Hear("tick");
    if (heard.size() == 2) Ask("Go on?", form);
  });
  form.Push.Click.Bind([&] { Hear("click"); });
  form.Bar.Change.Bind([&] { Hear("change"); });
  dispatcher.AdvanceTo(95);
  EXPECT_EQ(heard, (std::vector<std::string>{"tick", "tick"}))
      << "asked inside a tick, with seven more to come";
  EXPECT_EQ(UserClicks(form.Push), InputResult::Done);
  EXPECT_EQ(UserDragsTo(form.Bar, 3), InputResult::Done);
  dispatcher.AdvanceTo(195);
  EXPECT_EQ(heard.size(), 2u);
  platform.Reply();
  EXPECT_EQ(heard, (std::vector<std::string>{"tick", "tick", "Go on? yes", "click", "change"}));
  dispatcher.AdvanceTo(200);
  EXPECT_EQ(heard.size(), 7u) << "one of the lost ticks late, and the next at its time";
}

TEST_F(QuestionsTest, TwoQuestionsComeInTurn) {
  platform.boxAnswers = {Answer::Yes, Answer::No};
  dispatcher.Run(form, [&] {
    Ask("First?", form);
    scene.TellFault("A fault.");
    Ask("Second?", form);
    Hear("end");
  });
  EXPECT_EQ(platform.replies.size(), 1u);
  while (!platform.replies.empty()) platform.Reply();
  EXPECT_EQ(heard, (std::vector<std::string>{"end", "First? yes", "Second? no"}));
  EXPECT_EQ(platform.log, (std::vector<std::string>{"box First?", "box A fault.", "box Second?"}));
  EXPECT_FALSE(dispatcher.busy());
}

TEST_F(QuestionsTest, WhatAClosedFormAskedIsDropped) {
  dispatcher.Run(form, [&] {
    Ask("Mine?", form);
    Ask("Mine, too?", form);
    scene.TellFault("A fault.");
    other.Show();
    form.Unload();
  });
  UserClicks(other.Push);
  platform.Reply();
  EXPECT_TRUE(dispatcher.busy()) << "the fault is still told";
  platform.Reply();
  EXPECT_EQ(heard, std::vector<std::string>{});
  EXPECT_FALSE(dispatcher.busy());
  EXPECT_TRUE(platform.replies.empty());
}

TEST_F(QuestionsTest, AReplyAfterTheEndDoesNothing) {
  dispatcher.Run(form, [&] {
    Ask("Really?", form);
    scene.End();
  });
  platform.Reply();
  EXPECT_EQ(heard, std::vector<std::string>{});
}

TEST_F(QuestionsTest, AnObserverSeesEachHandlerAndEachTick) {
  std::vector<std::int64_t> seen;
  dispatcher.Observe([&] { seen.push_back(dispatcher.now()); });
  form.Clock.Interval = 10;
  form.Clock.Enabled = true;
  dispatcher.Run(form, [&] { UserClicks(form.Push); });
  dispatcher.AdvanceTo(35);
  EXPECT_EQ(seen, (std::vector<std::int64_t>{0, 0, 10, 20, 30}))
      << "the input that waited, and ticks one by one";
}

}  // namespace
}  // namespace quintara
