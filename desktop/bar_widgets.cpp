#include "desktop/bar_widgets.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>

#include <cstdlib>

#include "desktop/keyboard.h"
#include "desktop/session.h"
#include "scene/input.h"

namespace quintara::desktop {
namespace {

// Between the Scene's values and steps from the end at Min. The mapping is its own inverse but for the
// offset.
template <typename Bar>
int StepsFromMin(const Bar& bar) {
  return std::abs(static_cast<int>(bar.Value.Get()) - bar.Min);
}

template <typename Bar>
int ValueAt(const Bar& bar, int steps) {
  return bar.Min <= bar.Max ? bar.Min + steps : bar.Min - steps;
}

template <typename Bar>
void SetUp(QAbstractSlider& widget, const Bar& bar) {
  widget.setRange(0, std::abs(static_cast<int>(bar.Max) - bar.Min));
  widget.setSingleStep(bar.SmallChange);
  widget.setPageStep(bar.LargeChange);
}

template <typename Bar>
void ShowValue(QAbstractSlider& widget, const Bar& bar) {
  const QSignalBlocker quiet(widget);
  widget.setValue(StepsFromMin(bar));
}

}  // namespace

ScrollBarWidget::ScrollBarWidget(ScrollBar& bar, Qt::Orientation orientation, QWidget& parent,
                                 Session& session)
    : QScrollBar(orientation, &parent), Control(bar, *this, session), bar_(bar) {
  SetUp(*this, bar);
  // The value changes when the thumb is let go.
  setTracking(false);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  connect(this, &QScrollBar::valueChanged, this, &ScrollBarWidget::HandIn);
}

void ScrollBarWidget::ShowLooks() {
  ShowValue(*this, bar_);
}

void ScrollBarWidget::keyPressEvent(QKeyEvent* event) {
  if (!MoveByKey(*this, *event)) QScrollBar::keyPressEvent(event);
}

void ScrollBarWidget::HandIn(int position) {
  session_.Run([this, position] { UserDragsTo(bar_, static_cast<std::int16_t>(ValueAt(bar_, position))); });
  ShowLooks();
}

SliderWidget::SliderWidget(Slider& slider, QWidget& parent, Session& session)
    : QSlider(Qt::Horizontal, &parent), Control(slider, *this, session), slider_(slider) {
  SetUp(*this, slider);
  setTickPosition(QSlider::TicksBelow);
  setTickInterval(slider.looks().tickFrequency);
  connect(this, &QSlider::valueChanged, this, &SliderWidget::HandIn);
}

void SliderWidget::ShowLooks() {
  ShowValue(*this, slider_);
}

void SliderWidget::keyPressEvent(QKeyEvent* event) {
  if (!MoveByKey(*this, *event)) QSlider::keyPressEvent(event);
}

void SliderWidget::HandIn(int position) {
  session_.Run([this, position] { UserDragsTo(slider_, ValueAt(slider_, position)); });
  ShowLooks();
}

}  // namespace quintara::desktop
