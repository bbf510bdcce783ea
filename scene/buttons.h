#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/box.h"
#include "scene/event.h"

namespace quintara {

struct ButtonLooks {
  bool visible = true;
  bool enabled = true;
  std::string_view caption = "";
  std::string_view picture = "";  // the name of an embedded picture that is the button's face
  Colour backColor = colours::buttonFace;
  Colour foreColor = colours::buttonText;
  std::optional<Font> font{};  // the form's where not given
};

// What both kinds of push button have.
class Button : public Box {
 public:
  Property<std::string> Caption;
  Property<bool> Enabled;
  Event<> Click;
  Event<> MouseMove;

  const ButtonLooks& looks() const { return looks_; }
  bool IsEnabled() const override { return Enabled; }
  const Event<>* ClickEvent() const override { return &Click; }
  const Event<>* MouseMoveEvent() const override { return &MouseMove; }

 protected:
  Button(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
         const ButtonLooks& looks);

 private:
  ButtonLooks looks_;
};

class CommandButton : public Button {
 public:
  CommandButton(Container& container, const ObjectName& name, const Rectangle& place,
                const ButtonLooks& looks)
      : Button(Kind::CommandButton, container, name, place, looks) {}
};

// A small raised button of the console.
class SSCommand : public Button {
 public:
  SSCommand(Container& container, const ObjectName& name, const Rectangle& place, const ButtonLooks& looks)
      : Button(Kind::SSCommand, container, name, place, looks) {}
};

struct PanelLooks {
  std::string_view caption = "";
  Colour backColor = colours::buttonFace;
  std::optional<Font> font{};  // the form's where not given
};

// A static framed caption.
class SSPanel : public Box {
 public:
  SSPanel(Container& container, const ObjectName& name, const Rectangle& place, const PanelLooks& looks);

  Property<std::string> Caption;

  const PanelLooks& looks() const { return looks_; }

 private:
  PanelLooks looks_;
};

}  // namespace quintara
