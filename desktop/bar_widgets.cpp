#include "desktop/bar_widgets.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>

#include <type_traits>

#include "desktop/keyboard.h"
#include "desktop/session.h"
#include "front/bar_steps.h"
#include "scene/input.h"

namespace quintara::desktop {

template <typename Bar, typename QtBar>
BarWidget<Bar, QtBar>::BarWidget(Bar& bar, Qt::Orientation orientation, QWidget& parent, Session& session)
    : QtBar(orientation, &parent), Control(bar, *this, session), bar_(bar) {
  this->setRange(0, StepsOf(bar));
  this->setSingleStep(bar.SmallChange);
  this->setPageStep(bar.LargeChange);
  this->connect(this, &QtBar::valueChanged, this, &BarWidget::HandIn);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::ShowLooks() {
  const QSignalBlocker quiet(this);
  this->setValue(StepsFromMin(bar_));
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::keyPressEvent(QKeyEvent* event) {
  if (!MoveByKey(*this, *event)) QtBar::keyPressEvent(event);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::HandIn(int position) {
  const int value = ValueAt(bar_, position);
  // The range is the bar's own, so each of its values fits.
  using Number = std::remove_cv_t<decltype(bar_.Min)>;
  session_.Run([this, value] { UserDragsTo(bar_, static_cast<Number>(value)); });
  ShowLooks();
}

ScrollBarWidget::ScrollBarWidget(ScrollBar& bar, Qt::Orientation orientation, QWidget& parent,
                                 Session& session)
    : BarWidget(bar, orientation, parent, session) {
  // The value changes when the thumb is let go.
  setTracking(false);
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
}

SliderWidget::SliderWidget(Slider& slider, QWidget& parent, Session& session)
    : BarWidget(slider, Qt::Horizontal, parent, session) {
  setTickPosition(QSlider::TicksBelow);
  setTickInterval(slider.looks().tickFrequency);
}

}  // namespace quintara::desktop
