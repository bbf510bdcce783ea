#pragma once

namespace quintara {

// A single-precision variable. It reads as a double and rounds once, when something is stored in it, so every
// expression is worked out in double precision and no two of these can be added in single precision by
// accident. `Single(expression)` rounds a value where it has to be rounded before it is compared.
class Single {
 public:
  constexpr Single() = default;
  constexpr Single(double value)
      : value_(static_cast<float>(value)) {}  // NOLINT: a store is meant to be implicit
  constexpr operator double() const { return static_cast<double>(value_); }

  // The stored number itself, for printing it exactly.
  constexpr float Stored() const { return value_; }

 private:
  float value_ = 0;
};

}  // namespace quintara
