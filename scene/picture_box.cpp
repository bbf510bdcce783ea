#include "scene/picture_box.h"

namespace quintara {

PictureBox::PictureBox(quintara::Container& container, const ObjectName& name, const Rectangle& place,
                       const PictureBoxLooks& looks)
    : Box(Kind::PictureBox, container, name, place, looks.visible),
      Container(static_cast<Object&>(*this), properties(),
                {looks.backColor, looks.foreColor, looks.drawWidth, looks.scale}),
      Picture(properties(), {std::string(looks.picture), false}) {}

void PictureBox::Restore() {
  Object::Restore();
  RestoreSurface();
}

}  // namespace quintara
