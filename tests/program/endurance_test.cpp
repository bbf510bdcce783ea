// A day of play, twenty-four hours of the program's own time: nothing grows.

#include <gtest/gtest.h>

#include <random>

#include "fuzz/game_order.h"
#include "fuzz/player.h"
#include "fuzz/scene_order.h"
#include "scene/input.h"
#include "tests/support/resident_memory.h"

#ifdef SANITIZED
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace quintara::fuzz {
namespace {

// In bytes. Under the sanitizer what is freed stays resident for a while, so there what is in use is counted.
std::size_t MemoryInUse() {
#ifdef SANITIZED
  return __sanitizer_get_current_allocated_bytes();
#else
  return ResidentMemory();
#endif
}

// A game that is played at random, mostly by opening and closing windows.
class Day {
 public:
  Day() {
    program_.Start();
    // A button that ends the program would end the day.
    program_.quintara().cancelButton.Enabled = false;
  }

  void PlayUntil(std::int64_t time) {
    Dispatcher& dispatcher = program_.scene().dispatcher();
    for (int actions = 1; dispatcher.now() < time; ++actions) {
      Act();
      dispatcher.Advance(20 * Below(50));
      ASSERT_FALSE(program_.scene().ended());
      if (actions % 16 != 0) continue;
      order_.RequireHolds();
      RequireGameOrder(program_);
    }
  }

  // Opens and closes the windows in haste, and puts the game back and the list away.
  void ComeToRest() {
    for (int i = 0; i < 50; ++i) {
      for (Form* form : OtherForms()) form->Show();
      for (Form* form : OtherForms()) form->Unload();
    }
    UserClicks(program_.quintara().resetButton);
    disk_.written.clear();
    disk_.full = false;
  }

  std::vector<Form*> OtherForms() {
    std::vector<Form*> others = program_.scene().forms();
    std::erase(others, &program_.quintara());
    return others;
  }

 private:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<std::uint32_t>(bound)); }

  void Act() {
    const bool mainStandsAlone = program_.scene().loadedForms().size() == 1;
    constexpr std::string_view often = "HHHHHCCCJJJKKKSMLFRZQB";
    const int which = Below(40);
    std::string bytes(4, '\0');
    for (char& byte : bytes) byte = static_cast<char>(Below(256));
    if (which < static_cast<int>(often.size())) bytes[0] = often[static_cast<std::size_t>(which)];
    // So would closing the main window.
    if (bytes[0] == 'C' && mainStandsAlone) bytes[0] = 'H';
    bytes_ = Bytes(bytes);
    player_.Act();
  }

  std::mt19937 random_{1};
  MemoryDisk disk_{ShippedFiles()};
  AnsweringPlatform platform_{disk_};
  Program program_{platform_};
  SceneOrder order_{program_.scene()};
  Bytes bytes_{""};
  Player player_{program_, disk_, platform_, bytes_};
};

TEST(EnduranceTest, ADayOfPlayLeavesNoTrace) {
  constexpr std::int64_t hour = 3'600'000;
  constexpr std::size_t margin = std::size_t{256} << 10;
  constexpr int hoursOfWarmUp = 6;  // drawing layers keep the room that they once took
  Day day;
  std::size_t warm = 0;
  for (int hours = 1; hours <= 24; ++hours) {
    day.PlayUntil(hours * hour);
    day.ComeToRest();
    const std::size_t inUse = MemoryInUse();
    if (hours <= hoursOfWarmUp) warm = std::max(warm, inUse);
    EXPECT_LE(inUse, warm + margin) << "after " << hours << " hours";
  }
}

}  // namespace
}  // namespace quintara::fuzz
