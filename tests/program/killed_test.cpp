// Copies of the program that are killed while they save, or save at once, never leave a damaged file.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <random>

#include "tests/program/failing_calls.h"
#include "tests/program/saving.h"

namespace quintara {
namespace {

// A copy of this test program that does something and is gone.
class Copy {
 public:
  explicit Copy(const std::function<bool()>& work) : id_(fork()) {
    if (id_ == 0) _exit(work() ? EXIT_SUCCESS : EXIT_FAILURE);
  }
  Copy(const Copy&) = delete;
  Copy& operator=(const Copy&) = delete;
  ~Copy() {
    if (!ended_) kill(id_, SIGKILL);
    if (!ended_) Wait();
  }

  // How it ended.
  int Wait() {
    int status = 0;
    waitpid(id_, &status, 0);
    ended_ = true;
    return status;
  }

 private:
  pid_t id_;
  bool ended_ = false;
};

// The list and the record as two texts of quite different length, saved in turn.
class Turns {
 public:
  explicit Turns(const SavingFolder& folder) : folder_(folder) {}

  bool Save(int turn) const {
    DiskFileSystem disk;
    const Files files(disk, folder_.path().string());
    const std::string path = folder_.path().string() + "\\";
    const bool saved = files.WriteLines(path + "Masters.txt", turn % 2 == 0 ? few_ : many_);
    return files.WriteRecord(path + "extra.txt", 5, turn % 2 == 0 ? "7" : "15") && saved;
  }
  bool SaveTimes(int times) const {
    bool saved = true;
    for (int turn = 0; turn < times; ++turn) saved = Save(turn) && saved;
    return saved;
  }

  void ExpectWhole() const {
    DiskFileSystem disk;
    const std::string list = *disk.Read(folder_.path() / "Masters.txt", 0, Files::mostOfFile);
    EXPECT_TRUE(list == Joined(few_) || list == Joined(many_)) << list.size() << " bytes";
    const std::string record = *disk.Read(folder_.path() / "extra.txt", 0, Files::mostOfRecords);
    EXPECT_TRUE(record == std::string(40, ' ') + "7         " ||
                record == std::string(40, ' ') + "15        ")
        << record;
  }

 private:
  using Lines = std::vector<std::string>;
  static std::string Joined(const Lines& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    return bytes;
  }

  const SavingFolder& folder_;
  const Lines few_{"Ann"};
  const Lines many_{600, "Somebody - Grand Master of Quintara"};
};

// Lets what was left beside the files be an hour old, saves once more, and finds nothing beside them.
void ExpectTidyAfterAnHour(const SavingFolder& folder) {
  for (const auto& [name, bytes] : folder.Contents()) {
    const auto file = folder.path() / name;
    last_write_time(file, last_write_time(file) - std::chrono::hours(1));
  }
  EXPECT_TRUE(Turns(folder).SaveTimes(2));
  EXPECT_EQ(folder.Contents().size(), 2u);
}

TEST(KilledTest, AtAnyStep) {
  for (const Saving& saving : AllSavings()) {
    bool killed = true;
    for (int step = 1; killed && !HasFailure(); ++step) {
      const SavingFolder folder;
      folder.Put(saving.before);
      Copy copy([&] {
        DiskFileSystem disk;
        failing_calls::Begin({.first = step, .last = step}, failing_calls::Way::Killed);
        folder.Play(saving, disk);
        return true;
      });
      killed = WIFSIGNALED(copy.Wait());
      for (const auto& [name, bytes] : folder.Contents()) {
        const auto isOneOf = [&, &file = name, &found = bytes](const SavedFiles& files) {
          return files.contains(file) ? files.at(file) == found : file.find(".new") != std::string::npos;
        };
        EXPECT_TRUE(isOneOf(saving.before) || isOneOf(saving.after)) << saving.what << ", step " << step;
      }
      ExpectTidyAfterAnHour(folder);
    }
  }
}

#ifdef SANITIZED
constexpr int kills = 100;  // a copy of a process with so large a shadow takes its time
#else
constexpr int kills = 1000;
#endif

TEST(KilledTest, AtAThousandRandomMoments) {
  std::uniform_int_distribution<useconds_t> moment(0, 1500);
  const SavingFolder folder;
  const Turns turns(folder);
  ASSERT_TRUE(turns.Save(0));
  std::mt19937 random(1);
  for (int i = 0; i < kills && !HasFailure(); ++i) {
    {
      const auto saveOn = [&] { return turns.SaveTimes(1'000'000); };
      const Copy one(saveOn);
      // Every fourth time two copies save and are killed at once.
      std::optional<Copy> other;
      if (i % 4 == 0) other.emplace(saveOn);
      usleep(moment(random));
    }
    turns.ExpectWhole();
  }
  EXPECT_GT(folder.Contents().size(), 4u) << "some were killed while they wrote";
  ExpectTidyAfterAnHour(folder);
}

TEST(KilledTest, NoCopyHindersAnother) {
  const SavingFolder folder;
  const Turns turns(folder);
  ASSERT_TRUE(turns.Save(0));
  const auto saveOften = [&] { return turns.SaveTimes(300); };
  Copy copies[] = {Copy(saveOften), Copy(saveOften), Copy(saveOften)};
  for (int i = 0; i < 300; ++i) turns.ExpectWhole();
  for (Copy& copy : copies) EXPECT_EQ(copy.Wait(), EXIT_SUCCESS) << "each of its saves was told as done";
  turns.ExpectWhole();
  EXPECT_EQ(folder.Contents().size(), 2u);
}

}  // namespace
}  // namespace quintara
