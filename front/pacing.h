#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace quintara {

class Scene;

// Lets the Scene's clock follow real time, which the front end hands in: milliseconds that never go back.
class Pacing {
 public:
  // The scene must outlive it.
  explicit Pacing(Scene& scene) : scene_(scene) {}

  // Before the user's input: the clock comes up to real time, and what fell due meanwhile waits for Tick.
  void CatchUp(std::int64_t realTime);
  // What is due by now ticks; of the ticks that a timer lost because the machine was held up, one comes late.
  void Tick(std::int64_t realTime);
  // How long the front end may sleep before the next Tick, at most a minute; nothing while no timer runs or a
  // handler waits for the user.
  std::optional<std::int64_t> Rest(std::int64_t realTime) const;

  // Tells the player of a fault in the program, each once: a timer may meet the same one at every tick.
  void TellFault(const std::string& what);

 private:
  Scene& scene_;
  std::set<std::string> told_;
};

}  // namespace quintara
