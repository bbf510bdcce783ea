#include "desktop/control.h"

#include <QtWidgets/QWidget>

#include <utility>

#include "desktop/bar_widgets.h"
#include "desktop/button_widgets.h"
#include "desktop/list_widget.h"
#include "desktop/picture_widget.h"
#include "desktop/rich_text_widget.h"
#include "desktop/text_widget.h"
#include "desktop/units.h"
#include "scene/box.h"

namespace quintara::desktop {
namespace {

// Left to itself, the focus would go on to the next button, where a blank that the user types may end the
// game.
void DropFocus(const QWidget& widget) {
  QWidget* window = widget.window();
  const QWidget* focused = window->focusWidget();
  if (focused == &widget || widget.isAncestorOf(focused)) window->setFocus();
}

}  // namespace

void Control::Follow() {
  if (!std::exchange(fresh_, false) && seen_ == box_.changes()) return;
  seen_ = box_.changes();
  const QRect place = ToPixels(box_.Surface());
  if (!box_.IsEnabled() || !box_.IsVisible()) DropFocus(widget_);
  widget_.setGeometry(place);
  widget_.setEnabled(box_.IsEnabled());
  ShowLooks();
  widget_.setVisible(box_.IsVisible());
}

Control* MakeControl(Object& object, QWidget& parent, Session& session) {
  switch (object.kind()) {
    case Kind::PictureBox: return new PictureWidget(static_cast<PictureBox&>(object), parent, session);
    case Kind::CommandButton:
    case Kind::SSCommand: return new ButtonWidget(static_cast<Button&>(object), parent, session);
    case Kind::SSPanel: return new PanelWidget(static_cast<SSPanel&>(object), parent, session);
    case Kind::HScrollBar:
    case Kind::VScrollBar: return new ScrollBarWidget(static_cast<ScrollBar&>(object), parent, session);
    case Kind::Slider: return new SliderWidget(static_cast<Slider&>(object), parent, session);
    case Kind::TextBox: return new TextWidget(static_cast<TextBox&>(object), parent, session);
    case Kind::ListBox: return new ListWidget(static_cast<ListBox&>(object), parent, session);
    case Kind::RichTextBox: return new RichTextWidget(static_cast<RichTextBox&>(object), parent, session);
    default: return nullptr;
  }
}

}  // namespace quintara::desktop
