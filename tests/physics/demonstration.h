#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scene/input.h"
#include "scene/scene.h"
#include "tests/support/recording_platform.h"

namespace quintara {

struct Desk : Form {
  explicit Desk(Scene& owner) : Form(owner, "desk", {}) { Show(); }
};

// One of the demonstrations, beside another window of the program, which goes on when it is closed.
template <typename Window>
class DemonstrationTest : public ::testing::Test {
 protected:
  DemonstrationTest() {
    form.Show();
    platform.log.clear();
  }
  void Click(Object& object) { ASSERT_EQ(UserClicks(object), InputResult::Done) << FullName(object); }
  void Advance(std::int64_t milliseconds) { scene.dispatcher().Advance(milliseconds); }
  // Since the last call; a demonstration does nothing else to the outside while it runs.
  std::size_t Beeps() {
    const std::size_t beeps = platform.log.size();
    platform.log.clear();
    return beeps;
  }
  static void ExpectPlace(const Box& box, double left, double top) {
    EXPECT_NEAR(box.Left, left, 0.01) << FullName(box);
    EXPECT_NEAR(box.Top, top, 0.01) << FullName(box);
  }
  static void ExpectEnds(const Line& line, const Segment& ends) {
    EXPECT_NEAR(line.X1, ends.x1, 0.01) << FullName(line);
    EXPECT_NEAR(line.Y1, ends.y1, 0.01) << FullName(line);
    EXPECT_NEAR(line.X2, ends.x2, 0.01) << FullName(line);
    EXPECT_NEAR(line.Y2, ends.y2, 0.01) << FullName(line);
  }

  RecordingPlatform platform;
  Scene scene{platform};
  Desk desk{scene};
  Window form{scene};
};

}  // namespace quintara
