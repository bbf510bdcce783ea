#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "host/commands.h"

namespace quintara::host {

// Reads commands, one a line, and answers each.
class CommandLoop {
 public:
  // A longer line is refused whole.
  static constexpr std::size_t longestLine = std::size_t{1} << 20;

  // `startProgram` shows the first form of the program whose scene it is. The platform is the scene's own
  // and prints to `out` too. All three must outlive the loop.
  CommandLoop(Scene& scene, HostPlatform& platform, std::ostream& out, std::function<void()> startProgram)
      : host_{scene, platform, out, std::move(startProgram)} {}

  // Answers line by line until `quit` or the end of the input.
  void Run(std::istream& in);

 private:
  void Answer(const std::string& line);
  Outcome CarryOut(const std::string& line);

  Host host_;
};

}  // namespace quintara::host
