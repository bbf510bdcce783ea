#include "front/presses.h"

#include <utility>

#include "front/assistance.h"

namespace quintara {
namespace {

// One press reaches all its receivers within this time.
constexpr Presses::Time onItsWay = 20;
// Some keyboards tell of a key that is held down as if it came up and went down again, at once: faster than
// any finger.
constexpr Presses::Time fasterThanAFinger = 10;

// Whether less than a time has passed since then.
bool IsWithin(Presses::Time limit, Presses::Time then, Presses::Time now) {
  return now >= then && now - then < limit;
}

}  // namespace

void Presses::ButtonGoesDown(Time time) {
  pressedAt_ = time;
  repeats_ = false;
}

void Presses::KeyGoesDown(int key, Time time, bool repeats) {
  const bool same = key_ && key_->key == key;
  if (same && key_->isDown && !repeats && IsWithin(onItsWay, pressedAt_, time)) return;
  repeats_ = repeats || (same && !key_->isDown && IsWithin(fasterThanAFinger, key_->releasedAt, time));
  pressedAt_ = time;
  key_ = {.key = key, .isDown = true};
}

void Presses::KeyComesUp(int key, Time time) {
  if (!key_ || key_->key != key || !key_->isDown) return;
  key_->isDown = false;
  key_->releasedAt = time;
}

bool Presses::Counts(const Object& control, Time doubleClick) {
  const Assistance* row = table_.For(control);
  if (row == nullptr || !row->pressedOnce) return !repeats_;
  // Counted from the last press, not from the last that counted: who hammers on the button means one press.
  const auto [last, isFirst] = pressedLast_.try_emplace(&control, pressedAt_);
  const Time before = std::exchange(last->second, pressedAt_);
  return !repeats_ && (isFirst || !IsWithin(doubleClick, before, pressedAt_));
}

}  // namespace quintara
