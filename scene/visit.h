#pragma once

#include <concepts>
#include <cstdlib>
#include <type_traits>

#include "scene/controls.h"

namespace quintara {

// Several functions under one name: a call goes to the one whose parameter fits best.
template <typename... Actions>
struct Overloads : Actions... {
  using Actions::operator()...;
};
template <typename... Actions>
Overloads(Actions...) -> Overloads<Actions...>;

// The object as the class that its kind stands for, constant where the object is.
template <typename Control, typename AnyObject>
auto& KnownAs(AnyObject& object) {
  return static_cast<std::conditional_t<std::is_const_v<AnyObject>, const Control, Control>&>(object);
}

// Calls the action that fits the object's own class best and gives its result:
//
//   Visit(object, [](Label& label) { ... }, [](Button& ofAnyKind) { ... }, [](Object& anyOther) { ... });
//
// The results of all actions have one type. Where a kind of object fits none of them the call does not
// compile, so that a new kind can't be forgotten where each has to be thought of.
template <typename AnyObject, typename... Actions>
decltype(auto) Visit(AnyObject& object, const Actions&... actions) {
  static_assert(std::same_as<std::remove_const_t<AnyObject>, Object>, "its class is known already");
  const Overloads act{actions...};
  switch (object.kind()) {
    case Kind::Form: return act(KnownAs<Form>(object));
    case Kind::PictureBox: return act(KnownAs<PictureBox>(object));
    case Kind::Label: return act(KnownAs<Label>(object));
    case Kind::Line: return act(KnownAs<Line>(object));
    case Kind::Shape: return act(KnownAs<Shape>(object));
    case Kind::Image: return act(KnownAs<Image>(object));
    case Kind::CommandButton: return act(KnownAs<CommandButton>(object));
    case Kind::SSCommand: return act(KnownAs<SSCommand>(object));
    case Kind::SSPanel: return act(KnownAs<SSPanel>(object));
    case Kind::HScrollBar: return act(KnownAs<HScrollBar>(object));
    case Kind::VScrollBar: return act(KnownAs<VScrollBar>(object));
    case Kind::Slider: return act(KnownAs<Slider>(object));
    case Kind::Timer: return act(KnownAs<Timer>(object));
    case Kind::TextBox: return act(KnownAs<TextBox>(object));
    case Kind::ListBox: return act(KnownAs<ListBox>(object));
    case Kind::RichTextBox: return act(KnownAs<RichTextBox>(object));
    case Kind::Menu: return act(KnownAs<Menu>(object));
  }
  std::abort();
}

// The object as what it is asked for, such as As<Menu>(object), or As<const Menu>(object) of a constant one;
// null where it is something else.
template <typename Control, typename AnyObject>
Control* As(AnyObject& object) {
  return Visit(
      object, [](Control& itself) { return &itself; }, [](AnyObject&) -> Control* { return nullptr; });
}

}  // namespace quintara
