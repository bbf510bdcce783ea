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

// The words behind a command's name.
using Arguments = std::vector<Word>;

// How a command ended. One that is refused has neither changed nor printed anything.
using Outcome = Result<InputResult>;

// What a command does with its words.
struct Action {
  std::size_t fewestWords, mostWords;
  // Carries the command out and prints its own lines. There are as many words as it takes.
  Outcome (*run)(Host& host, const Arguments& arguments);
};

struct Command {
  std::string_view name;
  When when;
  Action action;
};

// Null for a name that no command has.
const Command* FindCommand(std::string_view name);

}  // namespace quintara::host
