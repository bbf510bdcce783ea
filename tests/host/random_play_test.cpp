#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <sstream>

#include "host/session.h"
#include "program/program.h"
#include "tests/support/recording_platform.h"

namespace quintara::host {
namespace {

// Plays as no sensible person would: any button, bar, key and pause at any moment, also where the game
// forbids it.
class RandomPlayer {
 public:
  explicit RandomPlayer(std::uint32_t seed) : random_(seed) {}

  std::string NextAction() {
    switch (Below(12)) {
      case 0:
        return "click Quintara." + OneOf({"cmdSearch", "cmdMagnify", "cmdReset", "cmdSound", "cmdAdvanced"});
      case 1: return "click Quintara.Image7";
      case 2: return "scroll Quintara.VScroll1 " + std::to_string(290 + Below(51));
      case 3: return "scroll Quintara.VScroll2 " + std::to_string(250 + Below(501));
      case 4: return "scroll Quintara.HScroll1 " + std::to_string(1 + Below(15));
      case 5:
        return OneOf({"arrow", "trough"}) + " Quintara." + OneOf({"VScroll1", "VScroll2", "HScroll1"}) + " " +
               OneOf({"min", "max"});
      case 6: return "move Quintara." + OneOf({"Image7", "Picture8", "cmdReset", "Label4", "Line16"});
      case 7:
        return OneOf({"click frmMasters.cmdRemove", "click frmMasters.cmdCancel",
                      "type frmMasters.Text1 \"A\"", "key frmMasters.Text1 13", "answer menu mnuMasters",
                      "click Quintara.cmdHelp", "answer box 6", "close frmMasters"});
      case 8: return "advance " + std::to_string(Below(100));
      case 9: return "advance " + std::to_string(Below(4000));
      case 10: return "advance 17";
      // A search that is let run to its lock-on, so that play gets on.
      default:
        return "chance 0." + std::to_string(Below(100)) +
               "\nclick Quintara.cmdSearch\nadvance 13000\n"
               "click Quintara.cmdMagnify";
    }
  }

 private:
  int Below(int bound) { return static_cast<int>(random_() % static_cast<std::uint32_t>(bound)); }
  std::string OneOf(std::initializer_list<const char*> words) {
    return words.begin()[Below(static_cast<int>(words.size()))];
  }

  std::mt19937 random_;
};

// What holds whatever was played.
void ExpectOrder(QuintaraForm& form) {
  const double fired = Val(form.Label25.Caption), shell = Val(form.Label21.Caption);
  ASSERT_TRUE(fired >= 0 && fired <= 6) << form.Label25.Caption.Get();
  ASSERT_TRUE(shell >= 1 && shell <= 6) << form.Label21.Caption.Get();
  for (const Label* score : {&form.Label17, &form.Label23}) {
    ASSERT_EQ(std::fmod(Val(score->Caption), 5), 0) << score->Caption.Get();
  }
  // Only a lock-on at the very turn leaves the other timer one tick more.
  ASSERT_FALSE(form.tmrBounce.Enabled && form.tmrBounce2.Enabled);
  ASSERT_TRUE(form.Picture5.Visible || (!form.Label3.Has(1) && !form.Line11.Has(16)));
}

TEST(RandomPlay, TenThousandActionsKeepTheGameInOrder) {
  for (const std::uint32_t seed : {1u, 2u, 3u, 4u}) {
    TemporaryFolder folder;
    std::ostringstream out;
    HostPlatform platform{folder.path(), out};
    Program program{platform};
    Session session{program.scene(), platform, out, [&program] { program.Start(); }};
    std::istringstream start("start");
    session.Run(start);
    RandomPlayer player(seed);
    for (int action = 0; action < 2500; ++action) {
      out.str("");
      const std::string lines = player.NextAction();
      std::istringstream in(lines);
      session.Run(in);
      ASSERT_EQ(out.str().find("error"), std::string::npos) << lines << out.str();
      ExpectOrder(program.quintara());
      if (HasFatalFailure()) FAIL() << "seed " << seed << ", action " << action << ": " << lines;
    }
  }
}

}  // namespace
}  // namespace quintara::host
