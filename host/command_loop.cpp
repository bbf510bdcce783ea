#include "host/command_loop.h"

#include <exception>
#include <istream>
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

void RequirePhase(const Host& host, When when) {
  if (host.scene.ended() && when != When::Always) throw Refusal("the program has ended");
  if (host.started && when == When::BeforeStart) throw Refusal("the program has started already");
  if (!host.started && when == When::WhileRunning) throw Refusal("the program has not started");
}

}  // namespace

void CommandLoop::Run(std::istream& in) {
  std::string line;
  while (!host_.left && ReadLine(in, line)) {
    if (!IsSkipped(line)) Answer(line);
  }
}

void CommandLoop::Answer(const std::string& line) {
  try {
    const InputResult result = CarryOut(line);
    host_.out << (result == InputResult::Done ? "ok" : "ignored");
  } catch (const std::exception& why) {
    host_.out << "error: " << why.what();
  }
  host_.out << '\n' << std::flush;
}

InputResult CommandLoop::CarryOut(const std::string& line) {
  if (line.size() > longestLine) throw Refusal("the line is too long");
  const std::vector<Word> words = SplitWords(line);
  const Command* command = FindCommand(PlainWord(words.front()));
  if (command == nullptr) throw Refusal("there is no command " + Quoted(words.front().text));
  RequirePhase(host_, command->when);
  const Arguments arguments(words.begin() + 1, words.end());
  if (arguments.size() < command->leastArguments || arguments.size() > command->mostArguments) {
    throw Refusal("wrong number of words");
  }
  return command->run(host_, arguments);
}

}  // namespace quintara::host
