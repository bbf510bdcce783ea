#include "scene/input.h"

#include <functional>
#include <limits>
#include <string>
#include <utility>

#include "scene/scene.h"
#include "text/utf8.h"

namespace quintara {
namespace {

Dispatcher& DispatcherOf(Object& object) {
  return object.form().scene().dispatcher();
}

// A disabled object that can still be seen: its containers are enabled, it is not.
bool CanBeUsed(const Object& object) {
  return IsShown(object) && object.IsEnabled();
}

// Runs one piece of the user's input on an object, unless the object can't be reached when its turn comes.
InputResult Use(Object& object, std::function<void()> action) {
  if (!DispatcherOf(object).busy() && !CanBeUsed(object)) return InputResult::NoTarget;
  DispatcherOf(object).Run(object.form(), [&object, action = std::move(action)] {
    if (CanBeUsed(object)) action();
  });
  return InputResult::Done;
}

bool Contains(const Rectangle& area, double left, double top) {
  return left >= area.left && left < area.left + area.width && top >= area.top &&
         top < area.top + area.height;
}

// The front-most visible and enabled child there: those with a surface of their own stand in front of the
// others.
Box* ChildAt(const Container& container, double left, double top) {
  for (const bool graphical : {false, true}) {
    for (Object* child : container.children()) {
      if (child->IsGraphical() != graphical || !child->IsVisible() || !child->TakesMouse()) continue;
      auto* box = static_cast<Box*>(child);  // as all children are that take the mouse
      if (Contains(box->Surface(), left, top)) return box;
    }
  }
  return nullptr;
}

template <typename Number>
Number Towards(BarEnd end, Number value, Number min, Number max, Number step) {
  const std::int64_t target = end == BarEnd::Min ? min : max;
  const std::int64_t other = end == BarEnd::Min ? max : min;
  const std::int64_t moved = std::int64_t{value} + (target > other ? step : -std::int64_t{step});
  const bool beyond = target > other ? moved > target : moved < target;
  return static_cast<Number>(beyond ? target : moved);
}

InputResult Step(ScrollBar& bar, BarEnd end, std::int16_t step) {
  return Use(bar, [&bar, end, step] { bar.Value = Towards(end, bar.Value.Get(), bar.Min, bar.Max, step); });
}

std::string WithoutLastCharacter(std::string text) {
  const auto isTail = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
  while (!text.empty() && isTail(text.back())) text.pop_back();
  if (!text.empty()) text.pop_back();
  return text;
}

bool IsTyped(std::int32_t code) {
  return code >= 32 && code != 127 && IsCharacter(static_cast<char32_t>(code));
}

std::string WithCharacter(std::string text, std::int32_t code) {
  AppendUtf8(text, static_cast<char32_t>(code));
  return text;
}

}  // namespace

Object* MouseReceiver(Object& object) {
  if (!IsShown(object)) return nullptr;
  Object* at = &object;
  while (at->container() != nullptr && !at->TakesMouse()) at = &at->container()->object();
  return at;
}

Object* ObjectAt(Form& form, double left, double top) {
  Object* receiver = &form;
  Container* container = &form;
  while (container != nullptr) {
    Box* child = ChildAt(*container, left, top);
    if (child == nullptr) break;
    receiver = child;
    left -= child->Surface().left;
    top -= child->Surface().top;
    container = child->AsContainer();
  }
  return receiver;
}

InputResult UserClicks(Object& object) {
  return Use(object, [&object] {
    if (const Event<>* click = object.ClickEvent()) click->Raise();
  });
}

InputResult UserMovesOnto(Object& object) {
  if (!IsShown(object)) return InputResult::NoTarget;
  DispatcherOf(object).Run(object.form(), [&object] {
    const Object* receiver = MouseReceiver(object);
    const Event<>* move = receiver != nullptr ? receiver->MouseMoveEvent() : nullptr;
    if (move != nullptr) move->Raise();
  });
  return InputResult::Done;
}

InputResult UserDragsTo(ScrollBar& bar, std::int16_t value) {
  return Use(bar, [&bar, value] { bar.Value = value; });
}

InputResult UserDragsTo(Slider& slider, std::int32_t value) {
  return Use(slider, [&slider, value] {
    slider.Value = value;
    slider.Scroll.Raise();
  });
}

InputResult UserPressesArrow(ScrollBar& bar, BarEnd end) {
  return Step(bar, end, bar.SmallChange);
}
InputResult UserPressesTrough(ScrollBar& bar, BarEnd end) {
  return Step(bar, end, bar.LargeChange);
}

InputResult UserPressesTrough(Slider& slider, BarEnd end) {
  return Use(slider, [&slider, end] {
    const std::int32_t value = Towards(end, slider.Value.Get(), slider.Min, slider.Max, slider.LargeChange);
    if (value == slider.Value) return;
    slider.Value = value;
    slider.Scroll.Raise();
  });
}

InputResult UserTypes(TextBox& box, std::int32_t character) {
  return Use(box, [&box, character] {
    constexpr std::int32_t backspace = 8;
    const bool fits = character >= 0 && character <= std::numeric_limits<std::int16_t>::max();
    // A character beyond 16 bits is none that a handler asks for.
    box.KeyPress.Raise(static_cast<std::int16_t>(fits ? character : 0));
    if (!IsShown(box)) return;
    if (character == backspace) box.Text = WithoutLastCharacter(box.Text);
    if (IsTyped(character)) box.Text = WithCharacter(box.Text, character);
  });
}

InputResult UserEdits(TextBox& box, std::string_view text) {
  std::string line(text);
  for (char& c : line) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  return Use(box, [&box, line] { box.Text = line; });
}

InputResult UserSelects(RichTextBox& box, std::int32_t start, std::int32_t length) {
  return Use(box, [&box, start, length] { box.Select(start, length); });
}

InputResult UserCloses(Form& form) {
  return Use(form, [&form] { form.Unload(); });
}

}  // namespace quintara
