#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "scene/object.h"

namespace quintara {

// What control arrays of every kind share; forms and the host know them by this.
class ControlArrayBase {
 public:
  ControlArrayBase(Form& form, std::string_view name);
  ControlArrayBase(const ControlArrayBase&) = delete;
  ControlArrayBase& operator=(const ControlArrayBase&) = delete;

  std::string_view name() const { return name_; }
  bool Has(std::int16_t index) const {
    return index >= 0 && static_cast<std::size_t>(index) < elements_.size() &&
           elements_[static_cast<std::size_t>(index)];
  }
  // Destroys element `index`, which Load made. An element that the form's table made stays.
  void Unload(std::int16_t index);
  // Destroys all that Load made.
  void UnloadAll();

 protected:
  ~ControlArrayBase() = default;
  Object& Element(std::int16_t index) const {
    if (!Has(index)) FaultMissing(index);
    return *elements_[static_cast<std::size_t>(index)];
  }
  // Takes a fresh element into the form: after the pattern in the table, in front of its kind on the surface.
  void Adopt(std::unique_ptr<Object> element);

 private:
  friend class Object;
  void Enter(Object& element, std::int16_t index);
  [[noreturn]] void FaultMissing(std::int16_t index) const;

  Form& form_;
  std::string_view name_;
  std::vector<Object*> elements_;  // by index; null where there is none
  std::vector<std::unique_ptr<Object>> loaded_;
};

// Controls of one kind under one name, told apart by an index: shells(0), shells(1).
template <typename Control>
class ControlArray : public ControlArrayBase {
 public:
  using ControlArrayBase::ControlArrayBase;

  // The element. One that does not exist is a fault of the program, which ends the handler.
  Control& operator()(std::int16_t index) const { return static_cast<Control&>(Element(index)); }

  // How the form's table declares an element that exists from the start.
  ObjectName At(std::int16_t index) { return {name(), *this, index}; }

  // Creates an element as a copy of element 0 in every property but Visible, which is off. An element that
  // exists is left as it is.
  void Load(std::int16_t index) {
    if (Has(index) || index < 0) return;
    Control& pattern = (*this)(0);
    auto element = std::make_unique<Control>(*pattern.container(), At(index), pattern);
    element->Visible = false;
    Adopt(std::move(element));
  }
};

}  // namespace quintara
