#include "desktop/control.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QWidget>

#include <utility>

#include "desktop/bar_widgets.h"
#include "desktop/button_widgets.h"
#include "desktop/form_window.h"
#include "desktop/image_widgets.h"
#include "desktop/list_widget.h"
#include "desktop/picture_widget.h"
#include "desktop/rich_text_widget.h"
#include "desktop/session.h"
#include "desktop/text_widget.h"
#include "desktop/units.h"
#include "front/placement.h"
#include "scene/visit.h"

namespace quintara::desktop {
void Control::Follow(const Zoom& zoom) {
  FollowName();
  // What is hidden is looked at when it shows.
  if (!box_.IsVisible()) return Hide();
  FollowToolTip();
  const bool zoomed = std::exchange(zoom_, zoom) != zoom;
  if (!std::exchange(fresh_, false) && !zoomed && seen_ == box_.changes()) return;
  seen_ = box_.changes();
  PixelRectangle place = ToPixels(box_.Surface());
  if (box_.AsContainer() != nullptr) {
    const Container& around = *box_.container();
    place = ReachingEdges(place, {ToPixels(around.InnerWidth()), ToPixels(around.InnerHeight())});
  }
  if (!box_.IsEnabled()) DropFocus();
  // A scroll area lays its bars out anew only where they tell it of their new breadth.
  if (zoomed) {
    for (QScrollBar* bar : widget_.findChildren<QScrollBar*>()) bar->updateGeometry();
  }
  widget_.setGeometry(ToQRect(zoom(place)));
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
    assistance_ = session_.assistance().For(box_);
    readOut_ = session_.assistance().ReadOutOf(box_);
  } else if (seen_ == box_.changes() && (readOut_ == nullptr || readOutSeen_ == readOut_->changes())) {
    return;
  }
  if (readOut_ != nullptr) readOutSeen_ = readOut_->changes();
  const QString name = ToQString(session_.assistance().NameOf(box_));
  if (name == widget_.accessibleName()) return;
  widget_.setAccessibleName(name);
  if (assistance_ == nullptr || !assistance_->announced || !IsShown(box_)) return;
  QAccessibleEvent news(&widget_, QAccessible::Alert);
  QAccessible::updateAccessibility(&news);
}

// What a control that is off waits for lies with others.
void Control::FollowToolTip() {
  if (assistance_ == nullptr) return;
  std::string toolTip = session_.assistance().ToolTipOf(box_);
  if (toolTip == toolTip_) return;
  toolTip_ = std::move(toolTip);
  widget_.setToolTip(ToQString(toolTip_));
}

Control* MakeControl(Object& object, QWidget& parent, Session& session) {
  Control* made = nullptr;
  Visit(
      object, [&](PictureBox& box) { made = new PictureWidget(box, parent, session); },
      [&](Button& button) { made = new ButtonWidget(button, parent, session); },
      [&](SSPanel& panel) { made = new PanelWidget(panel, parent, session); },
      [&](HScrollBar& bar) { made = new ScrollBarWidget(bar, Qt::Horizontal, parent, session); },
      [&](VScrollBar& bar) { made = new ScrollBarWidget(bar, Qt::Vertical, parent, session); },
      [&](Slider& slider) { made = new SliderWidget(slider, parent, session); },
      [&](TextBox& box) { made = new TextWidget(box, parent, session); },
      [&](ListBox& box) { made = new ListWidget(box, parent, session); },
      [&](RichTextBox& box) { made = new RichTextWidget(box, parent, session); },
      // Those that are painted need a widget where keyboard and assistive tools have to know them.
      [&](Image& image) {
        if (image.Click.bound()) made = new ImageButton(image, parent, session);
      },
      [&](Label& label) {
        const Assistance* row = session.assistance().For(label);
        if (row != nullptr && !row->tipOnly) made = new ReadOut(label, parent, session);
      },
      [](Line&) {}, [](Shape&) {}, [](Timer&) {}, [](Menu&) {}, [](Form&) {});
  return made;
}

}  // namespace quintara::desktop
