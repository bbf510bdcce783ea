// Nothing that fails while the list of masters or the record is saved, and no moment at which the program is
// killed, damages a file or goes untold.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <functional>
#include <map>

#include "program/program.h"
#include "scene/input.h"
#include "tests/program/failing_calls.h"
#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

using failing_calls::Faults;
using failing_calls::Way;

// By their names, what the files hold that the game writes; a missing one is not listed.
using SavedFiles = std::map<std::string, std::string>;

// What a player does that is saved, and the files before and after it.
struct Saving {
  const char* what;
  void (*play)(Program&, RecordingPlatform&);
  SavedFiles before, after;
};

// Starting the game saves the record; a name typed in, or all names removed, saves the list.
std::vector<Saving> AllSavings() {
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
  void Put(const SavedFiles& files) const {
    for (const char* name : {"Masters.txt", "extra.txt"}) {
      std::filesystem::remove(folder_.path() / name);
      if (const auto file = files.find(name); file != files.end()) folder_.Put(name, file->second);
    }
  }

  // All files that lie there, also those that should not.
  SavedFiles Contents() const {
    SavedFiles contents;
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
      contents[entry.path().filename().string()] = BytesOf(entry.path());
    return contents;
  }

  // Lets all that lies there be as old as what a killed program left.
  void LetAnHourPass() const {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
      last_write_time(entry, last_write_time(entry) - std::chrono::hours(1));
  }

  // Plays in a game of its own; gives the texts of the boxes shown.
  std::string Play(const Saving& saving) const {
    RecordingPlatform platform(folder_.text());
    Program program(platform);
    saving.play(program, platform);
    std::string boxes;
    for (const std::string& line : platform.log) boxes += line.starts_with("box ") ? line + '\n' : "";
    return boxes;
  }

 private:
  TemporaryFolder folder_;
};

// Each file is the old or the new one, and the player was told of one that isn't the new one.
void ExpectWholeAndTold(const Saving& saving, SavedFiles found, const std::string& boxes) {
  for (const auto& [name, after] : saving.after) {
    const auto old = saving.before.find(name);
    const bool isNew = found.contains(name) && found[name] == after;
    const bool isOld = old == saving.before.end() ? !found.contains(name) : found[name] == old->second;
    EXPECT_TRUE(isNew || isOld) << name << " holds " << found[name];
    EXPECT_EQ(boxes.find(name) == std::string::npos, isNew) << name << " after the boxes:\n" << boxes;
  }
}

// Saves with these faults and then without; false where the run was over before the first of them.
bool SaveWith(const Faults& faults, const Saving& saving) {
  const SavingFolder folder;
  folder.Put(saving.before);
  failing_calls::Begin(faults, Way::HalfDone);
  const std::string boxes = folder.Play(saving);
  const Faults counted = failing_calls::End();
  if (counted.failed() == 0) return false;
  ExpectWholeAndTold(saving, folder.Contents(), boxes);
  if (counted.failed() == 1) {
    EXPECT_LE(folder.Contents().size(), saving.after.size()) << "what was written beside it is removed";
  }
  folder.Put(saving.before);
  ExpectWholeAndTold({saving.what, saving.play, saving.after, saving.after}, folder.Contents(),
                     folder.Play(saving));
  return true;
}

// Each call of the system fails in turn, alone, with the next one, and with all that follow.
TEST(SavingTest, EachStepFailsInTurn) {
  for (const Saving& saving : AllSavings()) {
    for (const int inARow : {1, 2, Faults::evermore}) {
      int first = 1;
      while (SaveWith({.first = first, .last = first + inARow - 1}, saving)) {
        if (HasFailure()) FAIL() << saving.what << ", with faults from step " << first << " on: " << inARow;
        ++first;
      }
      EXPECT_GT(first, 10) << "the steps go through the injector";
    }
  }
}

// Lets a copy of this test program do something and be gone; gives its number.
pid_t InACopy(const std::function<bool()>& work) {
  const pid_t id = fork();
  if (id == 0) _exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
  return id;
}
int EndOf(pid_t copy) {
  int status = 0;
  waitpid(copy, &status, 0);
  return status;
}

TEST(SavingTest, TheProgramIsKilledAtEachStep) {
  for (const Saving& saving : AllSavings()) {
    bool killed = true;
    for (int step = 1; killed && !HasFailure(); ++step) {
      const SavingFolder folder;
      folder.Put(saving.before);
      killed = WIFSIGNALED(EndOf(InACopy([&] {
        failing_calls::Begin({.first = step, .last = step}, Way::Killed);
        folder.Play(saving);
        return true;
      })));
      for (const auto& [name, bytes] : folder.Contents()) {
        const auto isOneOf = [&, &file = name, &found = bytes](const SavedFiles& files) {
          return files.contains(file) ? files.at(file) == found : file.find(".new") != std::string::npos;
        };
        EXPECT_TRUE(isOneOf(saving.before) || isOneOf(saving.after)) << saving.what << ", step " << step;
      }
      folder.Put(saving.before);
      folder.LetAnHourPass();
      folder.Play(saving);
      EXPECT_EQ(folder.Contents(), saving.after) << "what was left beside the files is gone";
    }
  }
}

TEST(SavingTest, NoCopyOfTheProgramHindersAnother) {
  const TemporaryFolder folder;
  DiskFileSystem disk;
  const Files files(disk, folder.text());
  const std::vector<std::string> few{"Ann"}, many(600, "Somebody - Grand Master of Quintara");
  ASSERT_TRUE(files.WriteLines("Masters.txt", few));
  const auto saveOften = [&] {
    bool saved = true;
    for (int turn = 0; turn < 600; ++turn)
      saved = files.WriteLines("Masters.txt", turn % 2 ? few : many) && saved;
    return saved;
  };
  const pid_t copies[] = {InACopy(saveOften), InACopy(saveOften), InACopy(saveOften)};
  for (int i = 0; i < 300; ++i) {
    const auto list = files.ReadLines("Masters.txt");
    EXPECT_TRUE(list == few || list == many);
  }
  for (const pid_t copy : copies)
    EXPECT_EQ(EndOf(copy), EXIT_SUCCESS) << "each of its saves was told as done";
}

}  // namespace
}  // namespace quintara
