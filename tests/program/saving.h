#pragma once

#include <fstream>
#include <iterator>
#include <map>

#include "program/program.h"
#include "scene/input.h"
#include "tests/support/failing_disk.h"
#include "tests/support/recording_platform.h"

namespace quintara {

// By their names, what the files hold that the game writes; a missing one is not listed.
using SavedFiles = std::map<std::string, std::string>;

// What a player does that is saved, and the files before and after it.
struct Saving {
  const char* what;
  void (*play)(Program&, RecordingPlatform&);
  SavedFiles before, after;
};

// Starting the game saves the record; a name typed in, or all names removed, saves the list.
inline std::vector<Saving> AllSavings() {
  const auto addName = [](Program& program, RecordingPlatform&) {
    program.Start();
    program.quintara().score.Caption = "40";
    program.masters().Show();
    program.masters().namePanel.Visible = true;
    for (const char key : {'A', '\r'}) UserTypes(program.masters().nameBox, key);
  };
  const auto removeNames = [](Program& program, RecordingPlatform& platform) {
    program.Start();
    program.masters().Show();
    platform.boxAnswers.assign(20, Answer::Yes);
    UserClicks(program.masters().removeButton);
  };
  std::string names;
  for (int i = 0; i < 400; ++i) names += "Somebody " + std::to_string(i) + " - Master of Quintara\r\n";
  const std::string name = "A - Master of Quintara\r\n", blank(40, ' '), other(40, 'x'),
                    record = "15        ";
  return {{"the first name", addName, {}, {{"Masters.txt", name}, {"extra.txt", blank + record}}},
          {"a name more",
           addName,
           {{"Masters.txt", names}, {"extra.txt", other + "7         others"}},
           {{"Masters.txt", names + name}, {"extra.txt", other + record + "others"}}},
          {"no name left",
           removeNames,
           {{"Masters.txt", names}, {"extra.txt", other}},
           {{"Masters.txt", ""}, {"extra.txt", other + record}}}};
}

// A folder in which the game is played and saved.
class SavingFolder {
 public:
  const std::filesystem::path& path() const { return folder_.path(); }

  void Put(const SavedFiles& files) const {
    for (const char* name : {"Masters.txt", "extra.txt"}) {
      std::filesystem::remove(path() / name);
      if (const auto file = files.find(name); file != files.end())
        std::ofstream(path() / name, std::ios::binary) << file->second;
    }
  }

  // All files that lie there, also those that should not.
  SavedFiles Contents() const {
    SavedFiles contents;
    for (const auto& entry : std::filesystem::directory_iterator(path())) {
      std::ifstream file(entry.path(), std::ios::binary);
      contents[entry.path().filename().string()] = {std::istreambuf_iterator<char>(file), {}};
    }
    return contents;
  }

  // Plays in a game of its own; gives the texts of the boxes shown.
  std::string Play(const Saving& saving, FileSystem& disk) const {
    RecordingPlatform platform(path().string());
    platform.disk = &disk;
    Program program(platform);
    saving.play(program, platform);
    std::string boxes;
    for (const std::string& line : platform.log) boxes += line.starts_with("box ") ? line + '\n' : "";
    return boxes;
  }

 private:
  TemporaryFolder folder_;
};

}  // namespace quintara
