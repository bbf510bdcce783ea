#include "scene/picture_box.h"

namespace quintara {

PictureBox::PictureBox(quintara::Container& container, const ObjectName& name, const Rectangle& place,
                       const PictureBoxLooks& looks)
    : Box(Kind::PictureBox, container, name, place, looks.visible),
      Container(static_cast<Object&>(*this), changeCount(),
                {looks.backColor, looks.foreColor, looks.drawWidth, looks.scale}),
      Picture(changeCount(), {std::string(looks.picture), false}),
      place_(place),
      looks_(looks) {}

void PictureBox::Restore() {
  RestoreBox(place_, looks_.visible);
  RestoreSurface({looks_.backColor, looks_.foreColor, looks_.drawWidth, looks_.scale});
  Picture = quintara::Picture{std::string(looks_.picture), false};
}

}  // namespace quintara
