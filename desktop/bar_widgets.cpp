#include "desktop/bar_widgets.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <cstdlib>
#include <type_traits>

#include "desktop/keyboard.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "desktop/value_bubble.h"
#include "front/bar_steps.h"
#include "scene/input.h"

namespace quintara::desktop {

template <typename Bar, typename QtBar>
BarWidget<Bar, QtBar>::BarWidget(Bar& bar, Qt::Orientation orientation, QWidget& parent, Session& session)
    : QtBar(orientation, &parent),
      Control(bar, *this, session),
      bar_(bar),
      values_(bar, session.assistance().ScaleOf(bar)) {
  this->setRange(0, StepsOf(bar));
  this->setSingleStep(bar.SmallChange);
  this->setPageStep(bar.LargeChange);
  this->connect(this, &QtBar::valueChanged, this, [this](int position) { HandIn(ValueAt(bar_, position)); });
  const auto showThumb = [this] { ShowBubble(values_.TextOf(ValueAt(bar_, this->sliderPosition()))); };
  this->connect(this, &QtBar::sliderPressed, this, showThumb);
  this->connect(this, &QtBar::sliderMoved, this, showThumb);
  this->connect(this, &QtBar::sliderReleased, this, [this] { EndTyping(); });
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::ShowLooks() {
  const QSignalBlocker quiet(this);
  this->setValue(StepsFromMin(bar_));
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::keyPressEvent(QKeyEvent* event) {
  if (Types(*event)) return;
  EndTyping();
  if (const auto move = MoveByKey(*event)) {
    HandIn(values_.Moved(bar_.Value, *move));
  } else {
    event->ignore();
  }
}

template <typename Bar, typename QtBar>
bool BarWidget<Bar, QtBar>::Types(const QKeyEvent& key) {
  if (const auto character = CharacterByKey(key)) {
    if (!typed_.Type(*character)) return false;
  } else if (typed_.IsEmpty()) {
    return false;
  } else if (key.key() == Qt::Key_Backspace) {
    typed_.RubOut();
  } else if (key.key() == Qt::Key_Escape) {
    typed_.Drop();
  } else if (!IsEnter(key)) {
    return false;
  } else if (const auto value = typed_.Take()) {
    HandIn(*value);
  }
  ShowBubble(typed_.Told());
  return true;
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::wheelEvent(QWheelEvent* event) {
  // What is left over of a wheel that also turns sideways would scroll whatever lies behind.
  event->accept();
  EndTyping();
  const int notches = wheel_.Turn(event->angleDelta().y());
  std::int32_t value = bar_.Value;
  for (int i = 0; i < std::abs(notches); ++i)
    value = values_.Moved(value, notches > 0 ? BarMove::StepUp : BarMove::StepDown);
  if (value != bar_.Value) HandIn(value);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::focusOutEvent(QFocusEvent* event) {
  EndTyping();
  QtBar::focusOutEvent(event);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::hideEvent(QHideEvent* event) {
  EndTyping();
  QtBar::hideEvent(event);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::EndTyping() {
  typed_.Drop();
  ShowBubble({});
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::ShowBubble(const std::string& text) {
  if (text.empty()) {
    if (bubble_ != nullptr) bubble_->hide();
    return;
  }
  if (bubble_ == nullptr) bubble_ = new ValueBubble(*this->window());
  const QRect thumb = Thumb();
  bubble_->ShowAt(QRect(this->mapTo(this->window(), thumb.topLeft()), thumb.size()), this->orientation(),
                  ToQString(text), zoom());
}

template <typename Bar, typename QtBar>
QRect BarWidget<Bar, QtBar>::Thumb() const {
  constexpr bool scrolls = std::is_same_v<QtBar, QScrollBar>;
  QStyleOptionSlider option;
  this->initStyleOption(&option);
  return this->style()->subControlRect(scrolls ? QStyle::CC_ScrollBar : QStyle::CC_Slider, &option,
                                       scrolls ? QStyle::SC_ScrollBarSlider : QStyle::SC_SliderHandle, this);
}

template <typename Bar, typename QtBar>
void BarWidget<Bar, QtBar>::HandIn(int value) {
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
