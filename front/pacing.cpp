#include "front/pacing.h"

#include <algorithm>

#include "scene/scene.h"

namespace quintara {

void Pacing::CatchUp(std::int64_t realTime) {
  Dispatcher& dispatcher = scene_.dispatcher();
  dispatcher.PassTime(realTime - dispatcher.now());
}

void Pacing::Tick(std::int64_t realTime) {
  CatchUp(realTime);
  scene_.dispatcher().Advance(0);
}

std::optional<std::int64_t> Pacing::Rest(std::int64_t realTime) const {
  constexpr std::int64_t minute = 60'000;
  const auto due = scene_.dispatcher().busy() ? std::nullopt : scene_.dispatcher().NextDue();
  if (!due) return std::nullopt;
  return std::clamp<std::int64_t>(*due - realTime, 0, minute);
}

void Pacing::TellFault(const std::string& what) {
  if (told_.insert(what).second)
    scene_.TellFault("Something went wrong inside the game: " + what + ". The game goes on without it.");
}

}  // namespace quintara
