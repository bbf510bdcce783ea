#include "front/shots.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "game/quintara.h"
#include "numbers/numbers.h"

namespace quintara {
namespace {

constexpr double groundBurstsFrom = 10000;  // metres from the gun; nearer, only the mountain's foot is struck

// With one decimal: 0.4, 23.3.
std::string Tenths(double number) {
  const double tenths = std::floor(std::fabs(number) * 10 + 0.5);
  const auto whole = static_cast<std::int64_t>(tenths) / 10, rest = static_cast<std::int64_t>(tenths) % 10;
  const std::string text = std::to_string(whole) + "." + std::to_string(rest);
  return number < 0 && tenths > 0 ? "-" + text : text;
}

std::string Kilometres(double metres) {
  return Tenths(metres / 1000) + " km";
}

std::string NameOf(const Shot& shot) {
  return shot.shell == 6 ? "The bonus shell" : "Shell " + std::to_string(shot.shell);
}

std::string FromTarget(const Shot& shot) {
  return Kilometres(std::fabs(shot.Miss())) +
         (shot.Miss() < 0 ? " short of the target" : " beyond the target");
}

constexpr double pictureEnd = 15255 / 0.438;  // metres from the gun that the profile's right edge shows

}  // namespace

std::string SentenceOn(const Shot& shot) {
  switch (shot.end) {
    case Shot::End::InTheAir: return NameOf(shot) + " is in the air.";
    case Shot::End::Mountain:
      return NameOf(shot) + " burst on the mountain, " + Kilometres(shot.x) + " from the gun, " +
             Kilometres(std::fmax(shot.y, 0)) + " high.";
    case Shot::End::Ground:
      return NameOf(shot) + " fell at " + Kilometres(shot.x) +
             (shot.x > pictureEnd ? ", outside the picture, " : ", ") + FromTarget(shot) + ".";
    case Shot::End::Buried:
      return NameOf(shot) + " fell at " + Kilometres(shot.x) + " without a burst, " + FromTarget(shot) + ".";
    case Shot::End::Hit:
      return std::string("A hit with ") +
             (shot.shell == 6 ? "the bonus shell" : "shell " + std::to_string(shot.shell)) + ": " +
             std::to_string(shot.points) + " points.";
    case Shot::End::NextFired: return NameOf(shot) + " was lost when the next one was fired.";
    case Shot::End::LaidAnew: return NameOf(shot) + " was lost: the gun was laid anew while it flew.";
    case Shot::End::Left: break;
  }
  return NameOf(shot) + " was lost: its target was left while it flew.";
}

std::vector<PathPoint> MarksOn(const Shot& shot) {
  constexpr double longTick = 0.5;
  const double tick = shot.path.size() > 1 ? shot.path[1].time : 0;
  const double step = tick > longTick ? 10 : 1;
  std::vector<PathPoint> marks;
  double next = step;
  for (const PathPoint& point : shot.path) {
    if (point.time < next) continue;
    marks.push_back(point);
    next = std::floor(point.time / step + 1) * step;
  }
  return marks;
}

ShotWatch::Seen ShotWatch::SeeForm() const {
  return {Val(form_.shotsFired.Caption), Val(form_.score.Caption), form_.flight.time,
          form_.target.Visible && !form_.searchButton.Enabled};
}

void ShotWatch::Look() {
  const Seen now = SeeForm();
  const bool newGame = now.shotsFired < seen_.shotsFired;
  const bool newTarget = now.searches && !seen_.searches;
  if (HasShotInTheAir() && (newGame || newTarget)) EndShot(Shot::End::Left);
  if (newGame) {
    shots_.clear();
    target_ = 0;
    ++changes_;
  }
  if (newTarget) {
    ++target_;
    ++changes_;
  }
  if (now.shotsFired > seen_.shotsFired) {
    if (HasShotInTheAir()) EndShot(Shot::End::NextFired);
    BeginShot();
  } else if (HasShotInTheAir()) {
    FollowShot(now);
  }
  seen_ = now;
}

std::span<const Shot> ShotWatch::AtThisTarget() const {
  const auto isEarlier = [this](const Shot& shot) { return shot.target != target_; };
  return {std::find_if_not(shots_.begin(), shots_.end(), isEarlier), shots_.end()};
}

void ShotWatch::BeginShot() {
  Shot shot;
  shot.shell = static_cast<int>(Val(form_.shotsFired.Caption));
  shot.target = target_;
  shot.elevation = Val(form_.elevation.Caption);
  shot.velocity = Val(form_.velocity.Caption);
  shot.drag = Val(form_.dragConstant.Caption);
  shot.targetRange = form_.targetKm() * 1000;
  shot.path = {PathPoint{}};
  shots_.push_back(std::move(shot));
  ++changes_;
}

void ShotWatch::FollowShot(const Seen& now) {
  if (!form_.profile.Visible) return EndShot(Shot::End::Left);
  if (now.flightTime == seen_.flightTime) return;
  // A preview flies the same flight to its end, which leaves no shell to follow.
  const bool ticked = now.flightTime == Single(seen_.flightTime + form_.flight.dt);
  if (!ticked) return EndShot(Shot::End::LaidAnew);
  Shot& shot = shots_.back();
  shot.path.push_back({form_.flight.x, form_.flight.y, form_.flight.time});
  ++changes_;
  if (!form_.shellTimer.Enabled) EndShot(EndOfFlight(now));
}

// A burst hides the marker that it comes from: the one inside the mountain's box, or the one in the open.
Shot::End ShotWatch::EndOfFlight(const Seen& now) const {
  if (now.score > seen_.score) return Shot::End::Hit;
  if (!form_.shells(1).Visible) return Shot::End::Mountain;
  if (form_.shells(0).Visible) return Shot::End::Buried;
  return form_.flight.x > groundBurstsFrom ? Shot::End::Ground : Shot::End::Mountain;
}

void ShotWatch::EndShot(Shot::End end) {
  Shot& shot = shots_.back();
  shot.end = end;
  ++changes_;
  PathPoint last = shot.path.back();
  if (end == Shot::End::Buried) {
    for (const PathPoint& point : shot.path) {
      last = point;
      if (point.y < 0) break;
    }
  }
  shot.x = last.x;
  shot.y = last.y;
  if (end == Shot::End::Hit) shot.points = static_cast<int>(Val(form_.score.Caption) - seen_.score);
}

}  // namespace quintara
