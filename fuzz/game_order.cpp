#include "fuzz/game_order.h"

#include <algorithm>
#include <cmath>

#include "fuzz/require.h"
#include "numbers/numbers.h"
#include "scene/visit.h"

namespace quintara::fuzz {
namespace {

// The longest plot: two marks to each step of a shell at 750 m/s, on each of two surfaces. Balls and shells
// of the demonstrations leave fewer until they are put back.
constexpr std::size_t mostDots = 20'000;

void RequireNumbers(const Object& object) {
  const auto require = [&object](const auto&... numbers) {
    const bool finite = (std::isfinite(static_cast<double>(numbers)) && ...);
    Require(finite, "a place is a number", FullName(object));
  };
  Visit(
      object, [&](const Line& line) { require(line.X1, line.Y1, line.X2, line.Y2); },
      [&](const Box& box) { require(box.Left, box.Top, box.Width, box.Height); }, [](const Object&) {});
}

void RequireRoom(const Container& surface) {
  Require(surface.dots().size() <= mostDots, "a drawing layer doesn't fill up", FullName(surface.object()));
}

void RequireFlight(const Flight& flight) {
  for (const double number : {flight.vx, flight.vy, flight.speed, flight.x, flight.y, flight.time, flight.ax,
                              flight.ay, flight.dragTerm}) {
    Require(std::isfinite(number), "the flight is one of numbers");
  }
}

void RequireScores(QuintaraForm& form) {
  const double fired = Val(form.shotsFired.Caption), shell = Val(form.shellInGun.Caption);
  const double actual = Val(form.score.Caption), most = Val(form.bestScore.Caption);
  Require(fired >= 0 && fired <= 6, "at most six shells are fired", form.shotsFired.Caption);
  Require(shell == std::min(fired + 1, 6.0), "the next shell is in the gun", form.shellInGun.Caption);
  Require(std::fmod(actual, 5) == 0 && std::fmod(most, 5) == 0, "points come in fives");
  Require(actual >= 0, "nobody owes points", form.score.Caption);
}

}  // namespace

void RequireGameOrder(Program& program) {
  for (const Form* form : program.scene().forms()) {
    RequireRoom(*form);
    for (Object* object : form->objects()) {
      RequireNumbers(*object);
      if (const Container* surface = object->AsContainer()) RequireRoom(*surface);
    }
  }
  QuintaraForm& form = program.quintara();
  if (!form.loaded()) return;
  RequireFlight(form.flight);
  RequireScores(form);
  // Only a lock-on at the very turn leaves the other timer one tick more.
  Require(!(form.driftRightTimer.Enabled && form.driftLeftTimer.Enabled), "the target runs one way");
  Require(form.profile.Visible || (!form.rangeNumbers.Has(1) && !form.heightTicks.Has(16)),
          "the scales go with the profile");
}

}  // namespace quintara::fuzz
