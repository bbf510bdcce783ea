#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quintara {

// What the values of a bar stand for, as the caption beside it shows them: offset + factor * value.
struct BarScale {
  double offset = 0;
  double factor = 1;
  std::string_view unit = "";  // behind the number, as "m/s"
};

// Ways that keys, the wheel and assistive tools take a bar. Up is up: more of what it shows, whichever end
// that lies at.
enum class BarMove { StepUp, StepDown, PageUp, PageDown, Lowest, Highest };

// A bar's values as a person meets them.
class BarValues {
 public:
  template <typename Bar>
  BarValues(const Bar& bar, const BarScale& scale)
      : BarValues({bar.Min, bar.Max}, {bar.SmallChange, bar.LargeChange}, scale) {}

  // "45 deg"
  std::string TextOf(std::int32_t value) const { return NumberOf(value) + Unit(); }
  // From the lowest to the highest: "30 to 80 deg".
  std::string Range() const { return NumberOf(lowest_) + " to " + NumberOf(highest_) + Unit(); }
  // Where a move leads from a value; never beyond the ends.
  std::int32_t Moved(std::int32_t value, BarMove move) const;
  // The value nearest to a number that was typed as the caption shows it; nothing where it is out of range.
  std::optional<std::int32_t> ValueOf(double shown) const;
  // Whether the numbers have decimals.
  bool HasDecimals() const { return scale_.factor > -1 && scale_.factor < 1; }

 private:
  struct Ends {
    std::int32_t min, max;
  };
  struct Steps {
    std::int32_t small, large;
  };
  BarValues(const Ends& ends, const Steps& steps, const BarScale& scale);
  double Shown(std::int32_t value) const { return scale_.offset + scale_.factor * value; }
  std::string NumberOf(std::int32_t value) const;
  std::string Unit() const { return scale_.unit.empty() ? "" : ' ' + std::string(scale_.unit); }

  Steps steps_;
  BarScale scale_;
  std::int32_t lowest_, highest_;  // the values where least and most is shown
};

// The turns of a mouse wheel, of which each notch moves a bar by one small step. Fine wheels and touchpads
// turn by parts of a notch.
class WheelTurns {
 public:
  static constexpr int notch = 120;  // as toolkits count

  // The whole notches that are done with this turn, below 0 towards the user.
  int Turn(int part);

 private:
  int rest_ = 0;
};

// A value that is typed while its bar has the focus: digits, Enter takes it, Escape takes it back.
class TypedValue {
 public:
  explicit TypedValue(const BarValues& values) : values_(values) {}

  bool IsEmpty() const { return text_.empty(); }
  // False: the character is no part of such a number.
  bool Type(char character);
  // Takes the last character away.
  void RubOut();
  void Drop();
  // The value, and nothing is typed any more. Nothing where it is out of range: that is told, and the next
  // digit begins anew.
  std::optional<std::int32_t> Take();
  // What is to be shown beside the bar; empty where nothing is typed.
  std::string Told() const;

 private:
  const BarValues& values_;
  std::string text_;
  bool refused_ = false;
};

}  // namespace quintara
