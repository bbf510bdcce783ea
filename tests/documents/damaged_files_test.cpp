// A list of masters that a bad disk, a broken download or a stray key in an editor has damaged: every
// beginning of it, and every byte of it changed. Damaged documents are in tests/text.

#include <gtest/gtest.h>

#include "program/program.h"
#include "scene/input.h"
#include "tests/support/memory_disk.h"
#include "tests/support/recording_platform.h"

namespace quintara {
namespace {

const std::vector<std::string> names{"Ada - Grand Master of Quintara", "", "Zo\xC3\xAB - Master of Quintara"};

// How many of the names a list shows before the first and behind the last that is damaged.
std::ptrdiff_t Unharmed(const std::vector<std::string>& shown) {
  const auto first = std::mismatch(names.begin(), names.end(), shown.begin(), shown.end()).first;
  const auto last = std::mismatch(names.rbegin(), names.rend(), shown.rbegin(), shown.rend()).first;
  return (first - names.begin()) + (last - names.rbegin());
}

TEST(DamagedListOfMasters, LosesOneEntryAtMostAndCanBeSaved) {
  MemoryDisk disk;
  RecordingPlatform platform{"/quintara"};
  platform.disk = &disk;
  Program program{platform};
  program.Start();
  MastersForm& form = program.masters();
  const std::string whole = names[0] + "\r\n\r\n" + names[2] + "\r\n";
  const auto check = [&](const std::string& bytes) {
    disk.written["/quintara/Masters.txt"] = bytes;
    form.Unload();
    form.Show();
    // A damaged line end makes one line of two.
    ASSERT_TRUE(bytes.size() < whole.size() || Unharmed(form.list.items()) + 2 >= std::ssize(names)) << bytes;
    UserTypes(form.nameBox, 13);
    const std::vector<std::string> saved = form.list.items();
    form.Unload();
    form.Show();
    ASSERT_EQ(form.list.items(), saved) << bytes;
  };
  for (std::size_t at = 0; at < whole.size() && !HasFailure(); ++at) {
    check(whole.substr(0, at));
    std::string damaged = whole;
    for (int byte = 0; byte < 256; ++byte) {
      damaged[at] = static_cast<char>(byte);
      check(damaged);
    }
  }
}

}  // namespace
}  // namespace quintara
