#include "front/presses.h"

#include <gtest/gtest.h>

#include "front/assistance.h"
#include "tests/support/game.h"

namespace quintara {
namespace {

constexpr Presses::Time doubleClick = 400;

struct PressesTest : testing::Test {
  bool Click(const Object& control, Presses::Time time) {
    presses.ButtonGoesDown(time);
    return presses.Counts(control, doubleClick);
  }
  bool Key(const Object& control, int key, Presses::Time time, bool repeats = false) {
    presses.KeyGoesDown(key, time, repeats);
    presses.KeyGoesDown(key, time, repeats);  // the window behind hears of it, too
    return presses.Counts(control, doubleClick);
  }

  RunningGame game;
  QuintaraForm& form = game.form;
  AssistanceTable table{game.program};
  Presses presses{table};
};

TEST_F(PressesTest, TheSecondPressOfADoubleClickIsNone) {
  for (const Object* control :
       {static_cast<const Object*>(&form.fireButton), static_cast<const Object*>(&form.dragButton),
        static_cast<const Object*>(&form.searchButton), static_cast<const Object*>(&form.magnifyButton),
        static_cast<const Object*>(&form.resetButton)}) {
    EXPECT_TRUE(Click(*control, 1000)) << control->name();
    EXPECT_FALSE(Click(*control, 1399)) << control->name();
    EXPECT_FALSE(Click(*control, 1700)) << "who hammers on it means one press";
    EXPECT_TRUE(Click(*control, 2100)) << control->name();
  }
  EXPECT_TRUE(Click(form.fireButton, 5000));
  EXPECT_TRUE(Click(form.resetButton, 5100)) << "another control";
  EXPECT_FALSE(Key(form.fireButton, 'F', 5200)) << "with whatever it is pressed";
  EXPECT_TRUE(Click(form.soundButton, 6000));
  EXPECT_TRUE(Click(form.soundButton, 6100)) << "it may be pressed as fast as one likes";
}

TEST_F(PressesTest, AKeyThatIsHeldDownPressesOnce) {
  for (const Object* control :
       {static_cast<const Object*>(&form.fireButton), static_cast<const Object*>(&form.soundButton)}) {
    EXPECT_TRUE(Key(*control, 'F', 1000));
    for (Presses::Time time = 1660; time < 3000; time += 40)
      EXPECT_FALSE(Key(*control, 'F', time, true)) << "as the keyboard says";
    presses.KeyComesUp('F', 3000);
    EXPECT_TRUE(Key(*control, 'F', 4000));
    for (Presses::Time time = 4660; time < 6000; time += 500) {
      presses.KeyComesUp('F', time);
      EXPECT_FALSE(Key(*control, 'F', time + 1)) << "as release and press";
    }
    presses.KeyComesUp('F', 6000);
    EXPECT_TRUE(Key(*control, 'F', 6450));
    presses.KeyComesUp('F', 6500);
  }
}

TEST_F(PressesTest, AReleaseThatWentToAnotherProgramDoesNoHarm) {
  EXPECT_TRUE(Key(form.fireButton, 'F', 1000));
  EXPECT_TRUE(Key(form.fireButton, 'F', 3000));
}

}  // namespace
}  // namespace quintara
