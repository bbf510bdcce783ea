#include "fuzz/game_order.h"

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
  const double fired = Val(form.Label25.Caption), shell = Val(form.Label21.Caption);
  const double actual = Val(form.Label17.Caption), most = Val(form.Label23.Caption);
  Require(fired >= 0 && fired <= 6, "at most six shells are fired", form.Label25.Caption);
  Require(shell == std::min(fired + 1, 6.0), "the next shell is in the gun", form.Label21.Caption);
  Require(std::fmod(actual, 5) == 0 && std::fmod(most, 5) == 0, "points come in fives");
  Require(actual >= 0, "nobody owes points", form.Label17.Caption);
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
  Require(!(form.tmrBounce.Enabled && form.tmrBounce2.Enabled), "the target runs one way");
  Require(form.Picture5.Visible || (!form.Label3.Has(1) && !form.Line11.Has(16)),
          "the scales go with the profile");
}

}  // namespace quintara::fuzz
