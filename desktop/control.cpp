#include "desktop/control.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QWidget>

#include <utility>

#include "desktop/assistance.h"
#include "desktop/bar_widgets.h"
#include "desktop/button_widgets.h"
#include "desktop/form_window.h"
#include "desktop/image_widgets.h"
#include "desktop/list_widget.h"
#include "desktop/picture_widget.h"
#include "desktop/rich_text_widget.h"
#include "desktop/text_widget.h"
#include "desktop/units.h"
#include "scene/box.h"

namespace quintara::desktop {
namespace {

// The widget that makes an image or a label known to keyboard and assistive tools; most need none.
Control* MakeImageButton(Image& image, QWidget& parent, Session& session) {
  return image.Click.bound() ? new ImageButton(image, parent, session) : nullptr;
}
Control* MakeReadOut(Label& label, QWidget& parent, Session& session) {
  return AssistanceFor(label) != nullptr ? new ReadOut(label, parent, session) : nullptr;
}

}  // namespace

void Control::Follow(const Zoom& zoom) {
  FollowName();
  // What is hidden is looked at when it shows.
  if (!box_.IsVisible()) return Hide();
  const bool zoomed = std::exchange(zoom_, zoom) != zoom;
  if (!std::exchange(fresh_, false) && !zoomed && seen_ == box_.changes()) return;
  seen_ = box_.changes();
  const QRect place = zoom(ToPixels(box_.Surface()));
  if (!box_.IsEnabled()) DropFocus();
  // A scroll area lays its bars out anew only where they tell it of their new breadth.
  if (zoomed) {
    for (QScrollBar* bar : widget_.findChildren<QScrollBar*>()) bar->updateGeometry();
  }
  widget_.setGeometry(place);
  widget_.setEnabled(box_.IsEnabled());
  ShowLooks();
  widget_.show();
}

void Control::Hide() {
  if (widget_.isHidden()) return;
  DropFocus();
  widget_.hide();
  fresh_ = true;
}

void Control::DropFocus() {
  static_cast<FormWindow*>(widget_.window())->DropFocus(widget_);
}

// The name also tells the value, which another control may show.
void Control::FollowName() {
  if (!std::exchange(named_, true)) {
    assistance_ = AssistanceFor(box_);
    readOut_ = ReadOutOf(box_);
    widget_.setToolTip(ToolTipOf(box_));
  } else if (seen_ == box_.changes() && (readOut_ == nullptr || readOutSeen_ == readOut_->changes())) {
    return;
  }
  if (readOut_ != nullptr) readOutSeen_ = readOut_->changes();
  const QString name = AccessibleNameOf(box_);
  if (name == widget_.accessibleName()) return;
  widget_.setAccessibleName(name);
  if (assistance_ == nullptr || !assistance_->announced || !IsShown(box_)) return;
  QAccessibleEvent news(&widget_, QAccessible::Alert);
  QAccessible::updateAccessibility(&news);
}

Control* MakeControl(Object& object, QWidget& parent, Session& session) {
  switch (object.kind()) {
    case Kind::PictureBox: return new PictureWidget(static_cast<PictureBox&>(object), parent, session);
    case Kind::Image: return MakeImageButton(static_cast<Image&>(object), parent, session);
    case Kind::Label: return MakeReadOut(static_cast<Label&>(object), parent, session);
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
