// The record file and the heads of bitmaps. The first byte names a record, the next ten are its text, the
// rest is what lies in the file before.

#include <algorithm>

#include "fuzz/answering_platform.h"
#include "fuzz/bytes.h"
#include "fuzz/require.h"
#include "numbers/numbers.h"
#include "program/program.h"
#include "scene/input.h"

namespace quintara::fuzz {
namespace {

constexpr const char* joined = "/quintara\\extra.txt";
constexpr const char* path = "/quintara/extra.txt";

std::string Padded(std::string text, std::size_t length) {
  text.resize(std::max(text.size(), length), ' ');
  return text;
}

void StoreRecord(std::size_t number, std::string_view text, const std::string& before) {
  MemoryDisk disk(ShippedFiles());
  disk.written[path] = before;
  const Files files(disk, programFolder);
  const std::size_t start = Files::recordLength * (number - 1);
  const std::string expected = start < before.size() ? before.substr(start, Files::recordLength) : "";
  Require(files.ReadRecord(joined, number) == expected, "a record is read from its place");
  Require(files.WriteRecord(joined, number, text), "the record is stored");
  const std::string stored = Padded(std::string(text.substr(0, Files::recordLength)), Files::recordLength);
  Require(files.ReadRecord(joined, number) == stored, "what is stored is read alike");
  std::string after = Padded(before, start + Files::recordLength);
  after.replace(start, Files::recordLength, stored);
  Require(disk.written[path] == after && disk.written.size() == 1, "the other records stay");
}

// What the game makes of the file: opening the profile takes the flight time from record 5. Building a
// program takes far longer than this, so one is enough for all inputs.
class Game {
 public:
  Game() { program_.Start(); }

  void OpenProfile(const std::string& before) {
    disk_.written[path] = before;
    QuintaraForm& form = program_.quintara();
    form.magnifyButton.Enabled = true;
    Require(UserClicks(form.magnifyButton) == InputResult::Done, "the profile opens");
    const double record = before.size() > recordStart ? Val(before.substr(recordStart, 10)) : 0;
    Require(form.flightTimeBar.Value.Get() == std::clamp<int>(CInt(record), 1, 15),
            "the setting is the record's");
  }

 private:
  static constexpr std::size_t recordStart = 4 * Files::recordLength;

  MemoryDisk disk_{ShippedFiles()};
  AnsweringPlatform platform_{disk_};
  Program program_{platform_};
};

void ReadBitmapHead(const std::string& bytes) {
  MemoryDisk disk(ShippedFiles());
  disk.written["/quintara/own.bmp"] = bytes;
  const Files files(disk, programFolder);
  if (!files.IsBitmap("/quintara\\own.bmp")) return;
  Require(bytes.size() >= 30 && bytes.starts_with("BM"), "a bitmap has a head");
  // Sides below 4096 leave the upper bytes of the width zero.
  Require(bytes[20] == 0 && bytes[21] == 0, "no bitmap is too wide to be shown");
}

}  // namespace
}  // namespace quintara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quintara::fuzz;
  Bytes bytes(AsText(data, size));
  const std::size_t number = 1 + bytes.Below(16);
  const std::string_view text = bytes.TakeText(12);
  const std::string before(bytes.TakeRest());
  StoreRecord(number, text, before);
  static Game game;
  game.OpenProfile(before);
  ReadBitmapHead(before);
  return 0;
}
