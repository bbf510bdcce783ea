#pragma once

#include "desktop/control.h"
#include "desktop/surface.h"
#include "scene/picture_box.h"

namespace quintara::desktop {

class PictureWidget final : public Surface, public Control {
 public:
  PictureWidget(PictureBox& box, QWidget& parent, Session& session)
      : Surface(box, parent, session), Control(box, *this, session) {}

  void Follow(const Zoom& shown) override {
    Control::Follow(shown);
    if (isVisibleTo(window())) FollowSurface(shown);
  }

 protected:
  void ShowLooks() override {}
};

}  // namespace quintara::desktop
