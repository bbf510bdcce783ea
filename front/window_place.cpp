#include "front/window_place.h"

#include <utility>

#include "front/placement.h"
#include "scene/form.h"

namespace quintara {

bool WindowPlace::Follow(const Zoom& desk, const Screens& screens, bool isShown) {
  if (desk_ != desk) FollowDesk(desk);
  const bool zoomed = std::exchange(zoom_, FittingZoom(desk_, Inner(), screens.own)) != zoom_;
  const PixelPoint wanted = Wanted();
  if (wanted == wanted_ && isShown && !zoomed) return false;
  wanted_ = wanted;
  const PixelSize shown = size();
  placed_ = WithinReach(wanted, shown.width, screens.all);
  if (zoom_ != desk_) {
    const PixelSize outer{shown.width + windowFrame.width, shown.height + windowFrame.height};
    placed_ = WhollySeen(placed_, outer, screens.own);
  }
  return true;
}

// The desk has grown or shrunk below the window, which keeps its place on the screen.
void WindowPlace::FollowDesk(const Zoom& desk) {
  desk_ = desk;
  form_.Left = ToTwips(placed_.x) / desk_.factor();
  form_.Top = ToTwips(placed_.y) / desk_.factor();
  wanted_ = Wanted();
}

// Other forms are placed beside this one, so the Scene has to know.
void WindowPlace::MovedTo(const PixelPoint& place) {
  const PixelPoint old = std::exchange(placed_, place);
  if (placed_.x != old.x) form_.Left = ToTwips(placed_.x) / desk_.factor();
  if (placed_.y != old.y) form_.Top = ToTwips(placed_.y) / desk_.factor();
  wanted_ = Wanted();
}

PixelSize WindowPlace::size() const {
  return {zoom_(Inner().width), zoom_(Inner().height)};
}

PixelSize WindowPlace::surfaceSize() const {
  return {zoom_(FormSize().width), zoom_(FormSize().height)};
}

PixelPoint WindowPlace::Wanted() const {
  return {ToPixels(form_.Left.Get() * desk_.factor()), ToPixels(form_.Top.Get() * desk_.factor())};
}

PixelSize WindowPlace::Inner() const {
  const PixelSize form = FormSize();
  return {form.width, form.height + footer_};
}

PixelSize WindowPlace::FormSize() const {
  return {ToPixels(form_.InnerWidth()), ToPixels(form_.InnerHeight())};
}

}  // namespace quintara
