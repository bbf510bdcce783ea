#pragma once

#include <optional>

#include "front/zoom.h"

namespace quintara {

class Form;

// The screens as a window finds them.
struct Screens {
  PixelRectangle own;  // what task bars leave free on the screen that it is on
  PixelRectangle all;  // the same of all screens together
};

// Where the window of a form stands and how large it is shown. Forms place themselves on a desk that grows
// with the zoom, so that windows keep standing beside each other; what the user moves, the form is told.
class WindowPlace {
 public:
  WindowPlace(Form& form, const Zoom& desk) : form_(form), desk_(desk) {}

  // Takes over what the form says of its place and size, and how large windows are to be. Whether the window
  // has to be moved to place(); it has size() in any case.
  bool Follow(const Zoom& desk, const Screens& screens, bool isShown);
  // The user moved the window.
  void MovedTo(const PixelPoint& place);

  // The largest zoom up to the desk's at which the window fits on its screen.
  const Zoom& zoom() const { return zoom_; }
  const PixelPoint& place() const { return placed_; }
  PixelSize size() const;         // of the inner area, with what stands below the form
  PixelSize surfaceSize() const;  // of the form itself

  // Keeps room for something below the form, so many pixels high at a zoom of 1; Follow makes the window so.
  void SetFooter(int height) { footer_ = height; }

 private:
  void FollowDesk(const Zoom& desk);
  PixelPoint Wanted() const;
  PixelSize Inner() const;
  PixelSize FormSize() const;

  Form& form_;
  int footer_ = 0;
  Zoom desk_;
  Zoom zoom_;
  PixelPoint wanted_;  // by the form
  PixelPoint placed_;
};

}  // namespace quintara
