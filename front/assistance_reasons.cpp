#include "front/assistance.h"
#include "program/program.h"

// Why a control can't be used now, as its tool tip says it.

namespace quintara {
namespace {

constexpr std::string_view resetFirst = "Reset first";
constexpr std::string_view afterTheHit = "It was a hit: Reset comes in a moment";

bool IsSearching(const QuintaraForm& form) {
  return form.driftLeftTimer.Enabled || form.driftRightTimer.Enabled;
}

std::string_view WhyNoSearch(const QuintaraForm& form) {
  if (IsSearching(form)) return "The radar is searching";
  if (form.magnifyButton.Enabled) return "A target is found: Magnify first";
  return form.resetButton.Enabled ? resetFirst : "One target at a time: hit this one first";
}

std::string_view WhyNoMagnify(const QuintaraForm& form) {
  if (IsSearching(form)) return "Wait until the radar locks on";
  return form.profile.Visible ? "The profile is open" : "Search first";
}

std::string_view WhyNoFire(const QuintaraForm& form) {
  if (form.resetButton.Enabled) return resetFirst;
  return form.fragmentTimer.Enabled ? afterTheHit : "Move a bar first";
}

std::string_view WhyNoDrag(const QuintaraForm& form) {
  if (form.resetButton.Enabled) return resetFirst;
  if (form.fragmentTimer.Enabled) return afterTheHit;
  return form.shellInGun.Caption == "6" ? "No drag for the bonus shell"
                                        : "Drag is on until this shell bursts";
}

std::string_view WhyNoBar(const QuintaraForm& form) {
  return form.resetButton.Enabled ? resetFirst : afterTheHit;
}

}  // namespace

void AssistanceTable::AddReasonsWhyOff(Program& program) {
  QuintaraForm& game = program.quintara();
  AddReasons({
      {&game.searchButton, [&game] { return WhyNoSearch(game); }},
      {&game.magnifyButton, [&game] { return WhyNoMagnify(game); }},
      {&game.fireButton, [&game] { return WhyNoFire(game); }},
      {&game.dragButton, [&game] { return WhyNoDrag(game); }},
      {&game.elevationBar, [&game] { return WhyNoBar(game); }},
      {&game.velocityBar, [&game] { return WhyNoBar(game); }},
      {&game.resetButton, [] { return "After a hit or the bonus shell"; }},
  });

  ProjectileForm& bench = program.projectile();
  const auto whyNoBall = [&bench]() -> std::string_view {
    return bench.resetButton.Enabled ? resetFirst : "Wait until the balls are down";
  };
  AddReasons({
      {&bench.ball1Button, whyNoBall},
      {&bench.ball2Button, whyNoBall},
      {&bench.ball3Button, whyNoBall},
      {&bench.resetButton, [] { return "Start a ball first, and let it end"; }},
  });

  TrajectoryForm& simulator = program.trajectory();
  AddReasons({
      {&simulator.fireButton, [] { return "Move a bar to fire again"; }},
      {&simulator.stopButton, [] { return "Fire first"; }},
      {&program.analysis().copyButton, [] { return "Select some text first"; }},
  });
}

}  // namespace quintara
