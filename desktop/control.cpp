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
#include "scene/visit.h"

namespace quintara::desktop {
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
  using Made = Control*;
  return Visit(
      object, [&](PictureBox& box) -> Made { return new PictureWidget(box, parent, session); },
      [&](Button& button) -> Made { return new ButtonWidget(button, parent, session); },
      [&](SSPanel& panel) -> Made { return new PanelWidget(panel, parent, session); },
      [&](HScrollBar& bar) -> Made { return new ScrollBarWidget(bar, Qt::Horizontal, parent, session); },
      [&](VScrollBar& bar) -> Made { return new ScrollBarWidget(bar, Qt::Vertical, parent, session); },
      [&](Slider& slider) -> Made { return new SliderWidget(slider, parent, session); },
      [&](TextBox& box) -> Made { return new TextWidget(box, parent, session); },
      [&](ListBox& box) -> Made { return new ListWidget(box, parent, session); },
      [&](RichTextBox& box) -> Made { return new RichTextWidget(box, parent, session); },
      // What makes an image or a label known to the keyboard and to assistive tools; most need nothing.
      [&](Image& image) -> Made {
        return image.Click.bound() ? new ImageButton(image, parent, session) : nullptr;
      },
      [&](Label& label) -> Made {
        return AssistanceFor(label) != nullptr ? new ReadOut(label, parent, session) : nullptr;
      },
      [](Line&) -> Made { return nullptr; }, [](Shape&) -> Made { return nullptr; },
      [](Timer&) -> Made { return nullptr; }, [](Menu&) -> Made { return nullptr; },
      [](Form&) -> Made { return nullptr; });
}

}  // namespace quintara::desktop
