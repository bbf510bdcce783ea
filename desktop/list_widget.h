#pragma once

#include <QtWidgets/QListView>

#include "desktop/control.h"
#include "scene/text_controls.h"

namespace quintara::desktop {

// A list of texts. It reads the Scene's own items, as many of them as can be seen at a time.
class ListWidget final : public QListView, public Control {
 public:
  ListWidget(ListBox& box, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;

 private:
  class Items;

  ListBox& box_;
  Items* items_;
};

}  // namespace quintara::desktop
