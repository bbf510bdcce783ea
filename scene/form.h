#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "scene/container.h"
#include "scene/coordinate.h"
#include "scene/event.h"
#include "scene/looks.h"
#include "scene/object.h"

namespace quintara {

class ControlArrayBase;
class Menu;
class Scene;

// What the frame of a window adds to its client area, in twips.
inline constexpr double frameWidth = 90;
inline constexpr double frameHeight = 375;

struct FormLooks {
  std::string_view caption = "";
  double clientWidth = 0;  // twips
  double clientHeight = 0;
  Colour backColor = colours::buttonFace;
  Colour foreColor = colours::buttonText;
  std::int16_t drawWidth = 1;
  Font font{};  // of every control that names none
  Scale scale{};
};

// A window with its controls. A form class declares its controls as members, front to back, and binds its
// handlers.
//
// A form is loaded by the first touch, which builds it from its start values and runs its Load handler, and
// stays hidden until it is shown. Unloading it gives every control its start values back and destroys loaded
// elements of arrays; nothing else is destroyed, so it may happen, and the form be touched again, inside its
// own handlers. The form's own variables are no part of that and keep their values.
class Form : public Object, public Container {
 public:
  Property<std::string> Caption;
  // The outer frame in screen twips.
  Property<Single> Left, Top, Width, Height;
  // 1 counts in twips, 3 in pixels; 0 leaves the units as they are. Another number changes nothing.
  ComputedProperty<std::int16_t, Form> ScaleMode;
  // How many units of the scale the inner width and height count. Writing one of them counts that axis in
  // units of its own and leaves the other as it is. Only a number above 0 and below infinity is taken.
  ComputedProperty<double, Form> ScaleWidth, ScaleHeight;
  Event<> Load;
  Event<> QueryUnload;

  Scene& scene() const { return scene_; }
  bool loaded() const { return loaded_; }
  bool IsVisible() const override { return shown_; }
  bool TakesMouse() const override { return true; }
  Container* AsContainer() override { return this; }

  // Loads the form if it isn't loaded. Every use of the form by others goes through here; see FormHandle.
  void Touch();
  // Loads the form if it isn't loaded, then makes it visible and brings it to the front.
  void Show();
  // Raises QueryUnload, hides the form and restores it. Does nothing on a form that isn't loaded, or whose
  // QueryUnload handler is running.
  void Unload();
  // Opens a menu at a place in the form's scale, with which the handler ends. A chosen item raises its Click.
  void PopupMenu(Menu& menu, double x, double y);

  // Every object of the form in the order of its table, loaded array elements behind element 0.
  const std::vector<Object*>& objects() const { return objects_; }
  // Null where there is none of that name; an element of an array is found by its index.
  Object* Find(std::string_view name, std::int16_t index = notInArray) const;

  // What keys go to; null where nothing has been given the focus. Each SetFocus counts.
  Object* focus() const { return focus_; }
  ChangeCount focusMoves() const { return focusMoves_; }
  void MoveFocus(Object* object);

  const FormLooks& looks() const { return looks_; }
  double InnerWidth() const override;
  double InnerHeight() const override;
  void Restore() override;

 protected:
  Form(Scene& scene, std::string_view name, const FormLooks& looks);
  ~Form() override;

  // Binds an event to a handler of the form class: Bind(fireButton.Click, &QuintaraForm::Fire).
  template <typename FormClass, typename... Arguments>
  void Bind(Event<Arguments...>& event, void (FormClass::*handler)(Arguments...)) {
    event.Bind(
        [this, handler](Arguments... arguments) { (static_cast<FormClass*>(this)->*handler)(arguments...); });
  }

 private:
  friend class Object;
  friend class ControlArrayBase;
  std::int16_t ReadScaleMode() const { return scale().mode; }
  void WriteScaleMode(std::int16_t mode);
  template <Axis axis>
  double ReadExtent() const;
  template <Axis axis>
  void WriteExtent(double units);

  Scene& scene_;
  FormLooks looks_;
  std::vector<Object*> objects_;
  std::vector<ControlArrayBase*> arrays_;
  Object* focus_ = nullptr;
  ChangeCount focusMoves_ = 0;
  bool loaded_ = false;
  bool shown_ = false;
  bool unloading_ = false;
};

}  // namespace quintara
