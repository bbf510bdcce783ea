#include "front/uninstalling.h"

#include <gtest/gtest.h>

#include "tests/support/game.h"

namespace quintara {
namespace {

struct BoxKeeper : RecordingPlatform {
  void ShowMessageBox(const MessageBox& shown, std::function<void(Answer)> reply) override {
    box = shown;
    reply(Answer::Ok);
  }
  void OpenPopupMenu(Form&, Menu& menu, double, double, std::function<void(Menu*)> reply) override {
    reply(menu.items().back());
  }

  MessageBox box;
};

TEST(UninstallingTest, TheNoteIsKnownAndTheWayIsThatOfTheSystem) {
  BoxKeeper platform;
  Program program(platform);
  program.Start();
  ASSERT_EQ(UserClicks(program.quintara().helpButton), InputResult::Done);
  const MessageBox& box = platform.box;
  EXPECT_TRUE(IsNoteOnUninstalling(box));
  EXPECT_FALSE(IsNoteOnUninstalling({.text = box.text, .title = "Quintara"}));

  EXPECT_EQ(HowToUninstall("/home/ada/quintara", "/home/ada/quintara/data"),
            "On this system: delete the folder /home/ada/quintara.");
  const std::string readOnly = HowToUninstall("/media/disc", "/home/ada/.local/share/quintara");
  EXPECT_NE(readOnly.find("/media/disc."), std::string::npos);
  EXPECT_NE(readOnly.find("in the folder /home/ada/.local/share/quintara until"), std::string::npos);
  EXPECT_NE(HowToUninstall("", "/home/ada/q").find("\nsudo apt-get remove quintara\n"), std::string::npos);
}

}  // namespace
}  // namespace quintara
