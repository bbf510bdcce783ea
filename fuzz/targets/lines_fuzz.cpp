// The list of masters: any bytes in its file give lines, and what is written back is read alike.

#include "documents/masters.h"

#include "fuzz/answering_platform.h"
#include "fuzz/bytes.h"
#include "fuzz/require.h"
#include "program/program.h"
#include "scene/input.h"

namespace quintara::fuzz {
namespace {

using Lines = std::vector<std::string>;
constexpr const char* joined = "/quintara\\Masters.txt";
constexpr const char* path = "/quintara/Masters.txt";

Lines LinesOf(std::string_view bytes) {
  MemoryDisk disk(ShippedFiles());
  disk.written[path] = bytes;
  const Files files(disk, programFolder);
  const Lines lines = files.ReadLines(joined).value_or(Lines{"unread"});
  for (const std::string& line : lines) {
    Require(line.find_first_of("\r\n") == std::string::npos, "a line holds no line end");
  }
  Require(files.WriteLines(joined, lines), "the lines are written");
  Require(files.ReadLines(joined) == lines, "what is written is read alike");
  Require(disk.written.size() == 1, "nothing is left beside the file");
  return lines;
}

// The window over the same file: a name more, then none at all. Building a program takes far longer than
// this, so one is enough for all inputs; the window reads the file each time it is opened.
class Window {
 public:
  Window() { program_.Start(); }

  void Use(std::string_view bytes, const Lines& lines) {
    disk_.written[path] = bytes;
    MastersForm& form = program_.masters();
    form.Show();
    Require(form.list.items() == lines, "the window shows the lines");
    program_.quintara().score.Caption = "45";
    form.namePanel.Visible = true;
    for (const char letter : {'A', 'd', 'a', '\r'}) UserTypes(form.nameBox, letter);
    Lines longer = lines;
    longer.push_back("Ada - Grand Master of Quintara");
    Require(program_.scene().files().ReadLines(joined) == longer, "the name stands below the others");
    platform_.boxAnswer = 6;
    UserClicks(form.removeButton);
    Require(disk_.written[path].empty(), "all names are removed");
    form.Unload();
  }

 private:
  MemoryDisk disk_{ShippedFiles()};
  AnsweringPlatform platform_{disk_};
  Program program_{platform_};
};

}  // namespace
}  // namespace quintara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quintara::fuzz;
  static Window window;
  const std::string_view bytes = AsText(data, size);
  window.Use(bytes, LinesOf(bytes));
  return 0;
}
