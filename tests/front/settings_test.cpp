#include "front/settings.h"

#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

using Lines = std::vector<std::string>;

Settings Chosen() {
  Settings settings;
  settings.zoom = 1.25;
  settings.mute = settings.trace = true;
  settings.volume = 0;
  settings.strip = false;
  settings.places = {{"Quintara", {-3, 40}}, {"frmMasters", {1200, 0}}};
  return settings;
}

TEST(SettingsTest, WhatIsChosenIsFoundAgainAtTheNextStart) {
  RunningGame game;
  const Scene& scene = game.program.scene();
  EXPECT_EQ(LoadSettings(scene).settings, Settings());
  EXPECT_FALSE(LoadSettings(scene).damaged) << "the first start";
  EXPECT_TRUE(SaveSettings(scene, Chosen()));
  EXPECT_EQ(LoadSettings(scene).settings, Chosen());
  EXPECT_FALSE(LoadSettings(scene).damaged);
  // What was saved already is not written again.
  std::filesystem::permissions(game.folder.path() / "settings.txt", std::filesystem::perms::owner_read);
  EXPECT_TRUE(SaveSettings(scene, Chosen()));
  EXPECT_FALSE(SaveSettings(scene, Settings()));
  EXPECT_EQ(LoadSettings(scene).settings, Chosen());
}

TEST(SettingsTest, DamagedLinesAreLeftOutAndTheFileIsPutAside) {
  const Lines good = LinesOf(Chosen());
  for (const char* bad :
       {"", "volume", "volume = 101", "volume = 1.5", "volume = ", "zoom = 0.1", "zoom = nan", "mute = yes",
        "place of Quintara = 1", "place of Quintara = 1 x", "colour = red", "\xFF"}) {
    Lines lines = good;
    lines.insert(lines.begin() + 1, bad);
    const ReadSettings read = SettingsFromLines(lines);
    EXPECT_TRUE(read.damaged) << bad;
    EXPECT_EQ(read.settings, Chosen()) << bad;
  }
  RunningGame game;
  game.folder.Put("settings.txt", "volume = 20\r\n???");
  EXPECT_EQ(LoadSettings(game.program.scene()).settings.volume, 20);
  EXPECT_EQ(game.folder.Bytes("settings.txt.damaged"), "volume = 20\r\n???\r\n");
}

}  // namespace
}  // namespace quintara
