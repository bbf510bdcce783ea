#include "front/bar_values.h"

#include <algorithm>
#include <cmath>

#include "numbers/numbers.h"

namespace quintara {

BarValues::BarValues(const Ends& ends, const Steps& steps, const BarScale& scale)
    : steps_(steps), scale_(scale), lowest_(ends.min), highest_(ends.max) {
  if (Shown(lowest_) > Shown(highest_)) std::swap(lowest_, highest_);
}

// Rounded as a caption is.
std::string BarValues::NumberOf(std::int32_t value) const {
  return ToText(Single(Shown(value)));
}

std::int32_t BarValues::Moved(std::int32_t value, BarMove move) const {
  const int up = lowest_ < highest_ ? 1 : -1;
  const auto by = [&](int step) {
    return std::clamp(value + up * step, std::min(lowest_, highest_), std::max(lowest_, highest_));
  };
  switch (move) {
    case BarMove::StepUp: return by(steps_.small);
    case BarMove::StepDown: return by(-steps_.small);
    case BarMove::PageUp: return by(steps_.large);
    case BarMove::PageDown: return by(-steps_.large);
    case BarMove::Lowest: return lowest_;
    case BarMove::Highest: break;
  }
  return highest_;
}

std::optional<std::int32_t> BarValues::ValueOf(double shown) const {
  constexpr double rounding = 1e-9;
  if (shown < Shown(lowest_) - rounding || shown > Shown(highest_) + rounding) return std::nullopt;
  return static_cast<std::int32_t>(std::lround((shown - scale_.offset) / scale_.factor));
}

int WheelTurns::Turn(int part) {
  // Who turns back at half a notch means the way back.
  if ((part < 0) != (rest_ < 0)) rest_ = 0;
  rest_ += part;
  const int whole = rest_ / notch;
  rest_ -= whole * notch;
  return whole;
}

bool TypedValue::Type(char character) {
  constexpr std::size_t longest = 6;
  // On many keyboards the number pad has a comma.
  const bool isPoint = character == '.' || character == ',';
  if (!IsDigit(character) && !(isPoint && values_.HasDecimals())) return false;
  if (refused_) Drop();
  const bool second = isPoint && text_.find('.') != std::string::npos;
  if (text_.size() < longest && !second) text_ += isPoint ? '.' : character;
  return true;
}

void TypedValue::RubOut() {
  refused_ = false;
  if (!text_.empty()) text_.pop_back();
}

void TypedValue::Drop() {
  refused_ = false;
  text_.clear();
}

std::optional<std::int32_t> TypedValue::Take() {
  const bool isNumber = std::any_of(text_.begin(), text_.end(), &IsDigit);
  const auto value = isNumber ? values_.ValueOf(Val(text_)) : std::nullopt;
  if (value) Drop();
  refused_ = !value;
  return value;
}

std::string TypedValue::Told() const {
  if (text_.empty()) return {};
  if (refused_) return text_ + " is out of range: " + values_.Range();
  return text_ + "_  (" + values_.Range() + ", Enter)";
}

}  // namespace quintara
