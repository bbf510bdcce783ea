#include "scene/menu.h"

#include "scene/container.h"

namespace quintara {

Menu::Menu(quintara::Container& container, const ObjectName& name, const MenuLooks& looks)
    : Object(Kind::Menu, container, name),
      Caption(properties(), looks.caption),
      Visible(properties(), looks.visible),
      looks_(looks) {}

Menu::Menu(Menu& parent, const ObjectName& name, const MenuLooks& looks)
    : Menu(*parent.container(), name, looks) {
  parent.items_.push_back(this);
}

}  // namespace quintara
