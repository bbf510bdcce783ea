#pragma once

#include <functional>
#include <utility>

namespace quintara {

// An event of an object. At most one handler is bound to it, by its form; an event without one passes
// silently.
template <typename... Arguments>
class Event {
 public:
  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  void Bind(std::function<void(Arguments...)> handler) { handler_ = std::move(handler); }
  bool bound() const { return static_cast<bool>(handler_); }

  // Runs the handler to its end, inside the call.
  void Raise(Arguments... arguments) const {
    if (handler_) handler_(arguments...);
  }

 private:
  std::function<void(Arguments...)> handler_;
};

}  // namespace quintara
