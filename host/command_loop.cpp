#include "host/command_loop.h"

#include <istream>
#include <optional>
#include <ostream>

namespace quintara::host {
namespace {

// Reads a line without its end, CR LF or LF. Of one that is too long it keeps two characters too many, so
// that it is still too long when a CR is taken off. False at the end of the input.
bool ReadLine(std::istream& in, std::string& line) {
  line.clear();
  char c = 0;
  if (!in.get(c)) return false;
  for (; in && c != '\n'; in.get(c)) {
    if (line.size() < CommandLoop::longestLine + 2) line += c;
  }
  if (line.ends_with('\r')) line.pop_back();
  return true;
}

bool IsSkipped(const std::string& line) {
  const bool blank =
      line.size() <= CommandLoop::longestLine && line.find_first_not_of(" \t") == std::string::npos;
  return blank || line.starts_with('#');
}

// Nothing in the part of the run in which the command is accepted.
std::optional<Refusal> RefusedNow(const Host& host, When when) {
  if (host.scene.ended() && when != When::Always) return Refusal{"the program has ended"};
  if (host.started && when == When::BeforeStart) return Refusal{"the program has started already"};
  if (!host.started && when == When::WhileRunning) return Refusal{"the program has not started"};
  return std::nullopt;
}

}  // namespace

void CommandLoop::Run(std::istream& in) {
  std::string line;
  while (!host_.left && ReadLine(in, line)) {
    if (!IsSkipped(line)) Answer(line);
  }
}

void CommandLoop::Answer(const std::string& line) {
  const Outcome outcome = CarryOut(line);
  if (const Refusal* refusal = outcome.refusal()) {
    // A NUL that stood in a name on the line ends the text.
    host_.out << "error: " << refusal->why.c_str();
  } else {
    host_.out << (*outcome == InputResult::Done ? "ok" : "ignored");
  }
  host_.out << '\n' << std::flush;
}

Outcome CommandLoop::CarryOut(const std::string& line) {
  if (line.size() > longestLine) return Refusal{"the line is too long"};
  const auto words = SplitWords(line);
  if (!words) return *words.refusal();
  const auto name = PlainWord(words->front());
  if (!name) return *name.refusal();
  const Command* command = FindCommand(*name);
  if (command == nullptr) return Refusal{"there is no command " + Quoted(*name)};
  if (const auto refusal = RefusedNow(host_, command->when)) return *refusal;
  const Arguments arguments(words->begin() + 1, words->end());
  const Action& action = command->action;
  if (arguments.size() < action.fewestWords || arguments.size() > action.mostWords) {
    return Refusal{"wrong number of words"};
  }
  return action.run(host_, arguments);
}

}  // namespace quintara::host
