#pragma once

#include <string>
#include <string_view>

#include "scene/box.h"
#include "scene/container.h"
#include "scene/event.h"

namespace quintara {

// What a picture box shows: nothing, an embedded picture, or a file below the program's folder.
struct Picture {
  std::string name;  // empty: no picture
  bool isFile = false;

  friend bool operator==(const Picture&, const Picture&) = default;
};

struct PictureBoxLooks {
  bool visible = true;
  std::string_view picture = "";  // the name of an embedded picture
  Colour backColor = colours::buttonFace;
  Colour foreColor = colours::buttonText;
  std::int16_t drawWidth = 1;
  Scale scale{};
};

// A surface within a surface: a background, a picture drawn from its top left corner at its natural size, and
// a drawing layer. It clips its children and hides everything behind it.
class PictureBox : public Box, public Container {
 public:
  PictureBox(quintara::Container& container, const ObjectName& name, const Rectangle& place,
             const PictureBoxLooks& looks = {});

  Property<quintara::Picture> Picture;
  Event<> MouseMove;

  double InnerWidth() const override { return Width.Twips(); }
  double InnerHeight() const override { return Height.Twips(); }
  Container* AsContainer() override { return this; }
  const Event<>* MouseMoveEvent() const override { return &MouseMove; }
  void Restore() override;
};

}  // namespace quintara
