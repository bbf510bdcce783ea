#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scene/event.h"
#include "scene/object.h"

namespace quintara {

struct MenuLooks {
  std::string_view caption = "";  // "-" makes an item a separator
  bool visible = true;
  bool enabled = true;
};

// A menu that PopupMenu opens, or an item of one.
class Menu : public Object {
 public:
  // A menu of the form.
  Menu(quintara::Container& container, const ObjectName& name, const MenuLooks& looks);
  // An item, below those declared before it.
  Menu(Menu& parent, const ObjectName& name, const MenuLooks& looks);

  Property<std::string> Caption;
  Property<bool> Visible;
  // Raised where it is chosen; no pointer clicks it on its form, as it does a button.
  Event<> Click;

  // Top to bottom; empty for an item.
  const std::vector<Menu*>& items() const { return items_; }
  bool IsSeparator() const { return Caption == "-"; }
  bool IsVisible() const override { return Visible; }
  bool IsEnabled() const override { return looks_.enabled; }
  bool HasPlace() const override { return false; }
  // Whether the user can choose it where its menu is open.
  bool CanBeChosen() const { return IsVisible() && IsEnabled() && !IsSeparator(); }

 private:
  MenuLooks looks_;
  std::vector<Menu*> items_;
};

}  // namespace quintara
