#include "front/tour.h"

#include "scene/scene.h"

namespace quintara {
namespace {

// Where the radar finds a target, as the chance that decides it: 24.2 km after a long run, 22.0 km after a
// short one.
constexpr double farTarget = 0.7;
constexpr double nearTarget = 0.06325;

}  // namespace

std::string Tour::Play() {
  Run([this] { program_.Start(); });
  Picture("start", program_.quintara());
  PlayFirstTarget();
  PlaySecondAndThirdTarget();
  PlayBonusShell();
  ReadDocuments();
  ShowDemonstrations();
  Click(program_.quintara().cancelButton);
  return fault_;
}

void Tour::PlayFirstTarget() {
  QuintaraForm& game = program_.quintara();
  FindTarget(farTarget);
  Picture("target-acquired", game);
  OpenProfile();
  Picture("profile", game);

  Lay({320, 360});
  Picture("aiming", game);
  Fire();
  AdvanceUntil([&] { return game.slopeRayNormal.Visible.Get(); });
  Picture("burst-on-slope", game);

  Lay({310, 500});
  Fire();
  AdvanceUntil([&] { return game.levelRayUp.Visible.Get(); });
  Picture("burst-on-ground", game);

  TurnDragOn();
  Lay({311, 530});
  Fire();
  AdvanceUntil([&] { return game.fragment5.Visible.Get(); });
  constexpr std::int64_t whileTheFlamesStand = 250;
  Advance(whileTheFlamesStand);
  Picture("hit", game);
  WaitForReset();
}

void Tour::PlaySecondAndThirdTarget() {
  QuintaraForm& game = program_.quintara();
  FindTarget(nearTarget);
  OpenProfile();
  TurnDragOn();
  Lay({310, 510});
  Fire();
  AdvanceUntil([&] { return game.shells(0).Left > 2000; });
  Picture("in-flight", game);
  PictureWithFrames("screenshot", {&game});
  WaitForReset();

  FindTarget(nearTarget);
  OpenProfile();
  TurnDragOn();
  Lay({310, 510});
  Fire();
  WaitForReset();
}

void Tour::PlayBonusShell() {
  QuintaraForm& game = program_.quintara();
  MastersForm& masters = program_.masters();
  FindTarget(nearTarget);
  OpenProfile();
  Lay({295, 660});
  Picture("bonus-preview", game);
  Fire();
  AdvanceUntil([&] { return masters.IsVisible(); });
  Picture("bonus-hit", game);
  Type(masters.nameBox, "Ada Lovelace");
  Picture("masters-offer", masters);
  Type(masters.nameBox, "\r");
  Picture("masters", masters);
  Click(masters.cancelButton);
  constexpr std::int64_t untilTheFragmentsLie = 3000;
  Advance(untilTheFragmentsLie);
  WaitForReset();
}

void Tour::ReadDocuments() {
  QuintaraForm& game = program_.quintara();
  AnalysisForm& documents = program_.analysis();
  Choose(game.scenarioItem);
  Picture("scenario", documents);
  Picture("place-names", game);
  Click(documents.cancelButton);
  Choose(game.rulesItem);
  Picture("rules", documents);
  Choose(game.aboutItem);
  Picture("about", program_.about());
  Click(program_.about().okButton);
  Choose(game.readmeItem);
  Picture("readme", game);
  Click(game.closeReadmeButton);
}

void Tour::ShowDemonstrations() {
  AnalysisForm& documents = program_.analysis();
  ProjectileForm& bench = program_.projectile();
  TrajectoryForm& simulator = program_.trajectory();
  Choose(program_.quintara().physicsItem);
  Picture("analysis", documents);

  Click(documents.benchButton);
  Click(bench.ball3Button);
  constexpr std::int64_t ballsHalfWayDown = 5000;
  Advance(ballsHalfWayDown);
  Picture("projectile", bench);

  Click(documents.simulatorButton);
  Drag(simulator.elevationBar, 315);
  Drag(simulator.velocityBar, 280);
  Click(simulator.fireButton);
  AdvanceUntil([&] { return simulator.ball.Left > 50000; });
  Picture("trajectory", simulator);
  PictureWithFrames("screenshot-teaching", {&bench, &simulator});
}

void Tour::FindTarget(double chance) {
  QuintaraForm& game = program_.quintara();
  Queue(chance);
  Click(game.searchButton);
  if (chance == farTarget) {
    constexpr std::int64_t onTheWay = 7000;
    Advance(onTheWay);
    Picture("searching", game);
  }
  AdvanceUntil([&] { return game.magnifyButton.Enabled.Get(); });
}

void Tour::OpenProfile() {
  Click(program_.quintara().magnifyButton);
}

void Tour::TurnDragOn() {
  Queue(0);  // the thinnest air
  Click(program_.quintara().dragButton);
}

void Tour::Lay(const Shot& shot) {
  Drag(program_.quintara().elevationBar, shot.elevationBar);
  Drag(program_.quintara().velocityBar, shot.velocity);
}

void Tour::Fire() {
  Click(program_.quintara().fireButton);
}

void Tour::WaitForReset() {
  QuintaraForm& game = program_.quintara();
  AdvanceUntil([&] { return game.resetButton.Enabled.Get(); });
  Click(game.resetButton);
}

void Tour::Choose(Menu& item) {
  platform_.Choose(item);
  Click(program_.quintara().helpButton);
}

}  // namespace quintara
