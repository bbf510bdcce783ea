#include "scene/buttons.h"

namespace quintara {

Button::Button(Kind kind, Container& container, const ObjectName& name, const Rectangle& place,
               const ButtonLooks& looks)
    : Box(kind, container, name, place, looks.visible),
      Caption(properties(), looks.caption),
      Enabled(properties(), looks.enabled),
      looks_(looks) {}

SSPanel::SSPanel(Container& container, const ObjectName& name, const Rectangle& place,
                 const PanelLooks& looks)
    : Box(Kind::SSPanel, container, name, place), Caption(properties(), looks.caption), looks_(looks) {}

}  // namespace quintara
