#pragma once

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <string_view>
#include <vector>

#include "host/host_platform.h"
#include "host/values.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara::host {

// What the commands work on.
struct Host {
  Scene& scene;
  HostPlatform& platform;
  std::ostream& out;
  std::function<void()> startProgram;
  bool started = false;
  bool left = false;
};

// The part of a run in which a command is accepted.
enum class When { BeforeStart, BeforeEnd, WhileRunning, Always };

using Arguments = std::vector<Word>;

struct Command {
  std::string_view name;
  std::size_t leastArguments, mostArguments;
  When when;
  // Carries the command out and prints its own lines. Throws a Refusal before anything has changed.
  InputResult (*run)(Host& host, const Arguments& arguments);
};

// Null for a name that no command has.
const Command* FindCommand(std::string_view name);

}  // namespace quintara::host
