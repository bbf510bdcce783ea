// Nothing that fails while the list of masters or the record is saved damages a file or goes untold.

#include <gtest/gtest.h>

#include <functional>

#include "tests/program/saving.h"
#ifdef __linux__
#include "tests/program/failing_calls.h"
#endif

namespace quintara {
namespace {

// How the operations of one run are made to fail: calls `play` and gives what was counted.
using Injector = Faults (*)(const Faults& faults, const std::function<void(FileSystem&)>& play);

Faults FailOperations(const Faults& faults, const std::function<void(FileSystem&)>& play) {
  FailingDisk disk;
  disk.faults = faults;
  play(disk);
  return disk.faults;
}

#ifdef __linux__
Faults FailCalls(const Faults& faults, const std::function<void(FileSystem&)>& play) {
  DiskFileSystem disk;
  failing_calls::Begin(faults, failing_calls::Way::HalfDone);
  play(disk);
  return failing_calls::End();
}
#endif

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
bool SaveWith(const Faults& faults, const Saving& saving, Injector inject) {
  const SavingFolder folder;
  folder.Put(saving.before);
  std::string boxes;
  const Faults counted = inject(faults, [&](FileSystem& disk) { boxes = folder.Play(saving, disk); });
  if (counted.failed() == 0) return false;
  const SavedFiles found = folder.Contents();
  ExpectWholeAndTold(saving, found, boxes);
  if (counted.failed() == 1) {
    EXPECT_LE(found.size(), saving.after.size()) << "what was written beside it is removed";
  }

  folder.Put(saving.before);
  DiskFileSystem disk;
  const std::string laterBoxes = folder.Play(saving, disk);
  ExpectWholeAndTold({saving.what, saving.play, saving.after, saving.after}, folder.Contents(), laterBoxes);
  return true;
}

// Each step fails in turn, alone, with the next one, and with all that follow.
void FailEachStep(Injector inject) {
  for (const Saving& saving : AllSavings()) {
    for (const int inARow : {1, 2, Faults::evermore}) {
      int first = 1;
      while (SaveWith({.first = first, .last = first + inARow - 1}, saving, inject)) {
        if (testing::Test::HasFailure())
          FAIL() << saving.what << ", with faults from step " << first << " on: " << inARow;
        ++first;
      }
      EXPECT_GT(first, 10) << "the steps go through the injector";
    }
  }
}

TEST(SavingTest, EachOperationFailsInTurn) {
  FailEachStep(&FailOperations);
}

#ifdef __linux__
TEST(SavingTest, EachCallOfTheSystemFailsInTurn) {
  FailEachStep(&FailCalls);
}
#endif

}  // namespace
}  // namespace quintara
