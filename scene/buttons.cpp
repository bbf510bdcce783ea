#include "scene/buttons.h"

namespace quintara {

Button::Button(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
               const ButtonLooks& looks)
    : Box(kind, container, name, place, looks.visible),
      Caption(changeCount(), looks.caption),
      Enabled(changeCount(), looks.enabled),
      place_(place),
      looks_(looks) {}

void Button::Restore() {
  RestoreBox(place_, looks_.visible);
  Caption = looks_.caption;
  Enabled = looks_.enabled;
}

SSPanel::SSPanel(Container& container, const ObjectName& name, const Rectangle& place,
                 const PanelLooks& looks)
    : Box(Kind::SSPanel, container, name, place, true),
      Caption(changeCount(), looks.caption),
      place_(place),
      looks_(looks) {}

void SSPanel::Restore() {
  RestoreBox(place_, true);
  Caption = looks_.caption;
}

}  // namespace quintara
