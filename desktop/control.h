#pragma once

#include <string>

#include "front/zoom.h"
#include "scene/property.h"

class QWidget;

namespace quintara {
struct Assistance;
class Box;
class Object;
}  // namespace quintara

namespace quintara::desktop {

class Session;

// A widget that stands for an object with a surface of its own. Widgets of all kinds take this over.
class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // Takes over what has changed in the Scene since the last call, and how large it is to be shown.
  virtual void Follow(const Zoom& zoom);
  QWidget& widget() const { return widget_; }

 protected:
  Control(Box& box, QWidget& widget, Session& session) : session_(session), box_(box), widget_(widget) {}
  ~Control() = default;

  // What its own kind of widget shows, beyond place, visibility and whether it is enabled.
  virtual void ShowLooks() = 0;
  const Zoom& zoom() const { return zoom_; }

  Session& session_;

 private:
  void FollowName();
  void FollowToolTip();
  void Hide();
  void DropFocus();

  Box& box_;
  QWidget& widget_;
  Zoom zoom_;
  ChangeCount seen_ = 0;
  const Assistance* assistance_ = nullptr;
  const Object* readOut_ = nullptr;
  ChangeCount readOutSeen_ = 0;
  std::string toolTip_;
  bool named_ = false;
  bool fresh_ = true;
};

// The widget for an object; null for one that has no surface of its own.
Control* MakeControl(Object& object, QWidget& parent, Session& session);

}  // namespace quintara::desktop
