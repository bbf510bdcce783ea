#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "scene/event.h"
#include "scene/property.h"
#include "scene/scale.h"

namespace quintara {

class Container;
class ControlArrayBase;
class Form;

// Which class an object is of; see Visit.
enum class Kind {
  Form,
  PictureBox,
  Label,
  Line,
  Shape,
  Image,
  CommandButton,
  SSCommand,
  SSPanel,
  HScrollBar,
  VScrollBar,
  Slider,
  Timer,
  TextBox,
  ListBox,
  RichTextBox,
  Menu,
};

// What a control is called: a name of its own, or an element of a control array.
struct ObjectName {
  std::string_view name;
  ControlArrayBase* array = nullptr;
  std::int16_t index = -1;

  ObjectName(const char* own) : name(own) {}  // NOLINT: tables write names as texts
  ObjectName(std::string_view arrayName, ControlArrayBase& elements, std::int16_t place)
      : name(arrayName), array(&elements), index(place) {}
};

// Anything that a form's table names: a form, a control, a timer, a menu or an item of one.
class Object {
 public:
  static constexpr std::int16_t notInArray = -1;

  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  Kind kind() const { return kind_; }
  std::string_view name() const { return name_; }
  // The place in a control array, or notInArray.
  std::int16_t index() const { return index_; }
  Form& form() const { return *form_; }
  // What the object lies in; none for a form.
  Container* container() const { return container_; }

  // Grows whenever a property of the object changes.
  ChangeCount changes() const { return properties_.changes(); }

  // Gives every property its start value again, as at the building of the form.
  virtual void Restore() { properties_.Restore(); }

  // Counts the object's place in the scale that its container takes next. It stays where it is.
  virtual void ConvertPlace(const Scale& /*next*/) {}

  // Whether the object itself is switched to visible, whatever its containers are.
  virtual bool IsVisible() const { return true; }
  virtual bool IsEnabled() const { return true; }

  // The object as what other objects may lie in; null where none may.
  virtual Container* AsContainer() { return nullptr; }
  // Whether the object is anywhere on its form; a timer is not.
  virtual bool HasPlace() const { return true; }
  // Graphical objects are painted on the surface of their container and never stand in front of an object
  // that has a surface of its own.
  virtual bool IsGraphical() const { return false; }
  // Whether the mouse, where it is over the object, is its own and not that of what lies behind.
  virtual bool TakesMouse() const { return false; }
  // What a click of the user and a move of the pointer raise; null where the object has no such event.
  virtual const Event<>* ClickEvent() const { return nullptr; }
  virtual const Event<>* MouseMoveEvent() const { return nullptr; }

 protected:
  // A control: joins its container, behind those declared before it, and its array if it has one.
  Object(Kind kind, Container& container, const ObjectName& name);
  // A form.
  Object(std::string_view name, Form& self) : form_(&self), name_(name), kind_(Kind::Form) {}

  Properties& properties() { return properties_; }

 private:
  Form* form_;
  Container* container_ = nullptr;
  std::string_view name_;
  Properties properties_;
  Kind kind_;
  std::int16_t index_ = notInArray;
};

// The own name as the host and messages write it: "Label25", "Shape1(0)".
std::string FullName(const Object& object);

// Whether the object is on a shown form and neither it nor anything that it lies in is hidden.
bool IsShown(const Object& object);

}  // namespace quintara
