// Whole sessions of the headless host: any lines are answered one by one, and a refused one changes nothing.

#include <sstream>

#include "fuzz/bytes.h"
#include "fuzz/require.h"
#include "fuzz/scene_order.h"
#include "fuzz/shipped_files.h"
#include "host/command_loop.h"
#include "host/names.h"
#include "host/properties.h"
#include "program/program.h"
#include "scene/visit.h"

namespace quintara::fuzz {
namespace {

// No words for a line that can't be split.
std::vector<host::Word> WordsOf(const std::string& line) {
  const auto words = host::SplitWords(line);
  return words ? *words : std::vector<host::Word>();
}

// The host's own world outside, but for the disk and the seed, so that a run depends on its input alone.
class FuzzedPlatform : public host::HostPlatform {
 public:
  explicit FuzzedPlatform(std::ostream& out) : HostPlatform(programFolder, out) {}
  FileSystem& Disk() override { return disk_; }
  std::uint64_t Seed() override { return ++seed_; }

 private:
  MemoryDisk disk_{ShippedFiles()};
  std::uint64_t seed_ = 0;
};

// A host and what it printed to the last line.
class TalkingHost {
 public:
  // Hands in a line and checks that it was answered as the protocol says.
  void Say(const std::string& line) {
    const std::uint64_t before = Changes();
    const bool ended = program_.scene().ended();
    out_.str("");
    std::istringstream in(line + "\n");
    loop_.Run(in);
    const std::string printed = out_.str();
    if (printed.empty()) return;
    const std::string answer = ClosingLine(printed);
    const bool refused = answer.starts_with("error: ");
    Require(answer == "ok" || answer == "ignored" || refused, "a closing line", answer);
    const auto words = WordsOf(line);
    Require(!ended || refused || words[0].text == "quit", "after the end nothing is accepted", line);
    if (answer == "ok") return;
    Require(printed.size() == answer.size() + 1, "what is refused or ignored prints nothing else", printed);
    Require(Changes() == before, "what is refused or ignored changes nothing", line);
  }

  // What holds after any session.
  void RequireOrder() {
    order_.RequireHolds();
    for (Form* form : program_.scene().loadedForms()) {
      for (Object* object : form->objects()) {
        for (const host::NamedValue& property : host::DumpedProperties(*object)) {
          RequireReadsBack(*object, property);
        }
      }
    }
  }

 private:
  // A printed value is a word of its line, and setting it again changes nothing.
  static void RequireReadsBack(Object& object, const host::NamedValue& property) {
    const std::string what = host::PathOf(object) + "." + property.name + " = " + property.value;
    const std::vector<host::Word> words = WordsOf(property.value);
    Require(words.size() == 1 && property.value.find('\n') == std::string::npos, "a value is one word", what);
    const bool readOnly = Visit(
        object, [](const ListBox&) { return true; },
        [&](const ScrollBar&) { return property.name != "Enabled"; }, [](const Slider&) { return true; },
        [&](const Object&) { return property.name == "SelLength" || property.name == "Picture"; });
    if (readOnly) return;
    const auto assign = host::PrepareAssignment(object, property.name, words[0]);
    Require(static_cast<bool>(assign), "a printed value can be set", what);
    (*assign)();
    const auto value = host::ReadProperty(object, property.name);
    Require(value && *value == property.value, "a value reads back", what);
  }

  static std::string ClosingLine(const std::string& printed) {
    Require(printed.ends_with('\n'), "a reply ends its line", printed);
    const std::size_t start = printed.find_last_of('\n', printed.size() - 2) + 1;
    return printed.substr(start, printed.size() - 1 - start);
  }

  // Differs after any change of any object.
  std::uint64_t Changes() {
    Scene& scene = program_.scene();
    auto changes = static_cast<std::uint64_t>(scene.dispatcher().now()) + scene.loadedForms().size();
    for (Form* form : scene.forms()) {
      changes += form->changes() + form->wipes() + form->dots().size();
      for (Object* object : form->objects()) changes += object->changes();
    }
    return changes;
  }

  std::ostringstream out_;
  FuzzedPlatform platform_{out_};
  Program program_{platform_};
  SceneOrder order_{program_.scene()};
  host::CommandLoop loop_{program_.scene(), platform_, out_, [this] { program_.Start(); }};
};

// The time that a session may let go by, in milliseconds, so that none takes for ever.
constexpr double mostTime = 30'000;

void Play(std::string_view script) {
  TalkingHost host;
  double time = 0;
  std::istringstream lines{std::string(script)};
  for (std::string line; std::getline(lines, line);) {
    const std::vector<host::Word> words = WordsOf(line);
    if (words.size() > 1 && words[0].text == "advance") time += std::strtod(words[1].text.c_str(), nullptr);
    if (!(time <= mostTime)) break;
    for (const host::Word& word : words) {
      const std::vector<host::Word> again = WordsOf(host::Quoted(word.text));
      Require(again.size() == 1 && again[0].text == word.text, "a quoted text reads back", line);
    }
    host.Say(line);
  }
  host.RequireOrder();
}

}  // namespace
}  // namespace quintara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  quintara::fuzz::Play(quintara::fuzz::AsText(data, size));
  return 0;
}
