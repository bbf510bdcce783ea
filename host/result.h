#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

namespace quintara::host {

// Why a command can't be carried out. The text stands behind "error: " and has no line break.
struct Refusal {
  std::string why;
};

// A value, or the refusal that comes instead. What gives a refusal has changed nothing. The value may be a
// reference: Result<Form&>.
template <typename Value>
class [[nodiscard]] Result {
  using Referred = std::remove_reference_t<Value>;
  using Held = std::conditional_t<std::is_reference_v<Value>, std::reference_wrapper<Referred>, Value>;

 public:
  Result(Value value) : held_(std::in_place_index<0>, std::forward<Value>(value)) {}
  Result(Refusal refusal) : held_(std::in_place_index<1>, std::move(refusal)) {}

  // Whether there is a value.
  explicit operator bool() const { return held_.index() == 0; }
  // The value, which has to be there.
  const Value& operator*() const { return std::get<0>(held_); }
  auto* operator->() const { return &**this; }

  // Null where there is a value.
  const Refusal* refusal() const { return std::get_if<1>(&held_); }

 private:
  std::variant<Held, Refusal> held_;
};

}  // namespace quintara::host
