#pragma once

#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

#include "desktop/control.h"
#include "front/bar_values.h"
#include "scene/bars.h"

namespace quintara::desktop {

class ValueBubble;

// What widgets of both kinds of bar do. They count from 0 at the top or left end, since Qt's can't have the
// larger number there.
template <typename Bar, typename QtBar>
class BarWidget : public QtBar, public Control {
 protected:
  BarWidget(Bar& bar, Qt::Orientation orientation, QWidget& parent, Session& session);

  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  // False: the key has nothing to do with a value that is typed.
  bool Types(const QKeyEvent& key);
  void EndTyping();
  void HandIn(int value);
  void ShowBubble(const std::string& text);
  QRect Thumb() const;

  Bar& bar_;
  BarValues values_;
  TypedValue typed_{values_};
  WheelTurns wheel_;
  ValueBubble* bubble_ = nullptr;  // the window's, from the first time on that it is needed
};

class ScrollBarWidget final : public BarWidget<ScrollBar, QScrollBar> {
 public:
  ScrollBarWidget(ScrollBar& bar, Qt::Orientation orientation, QWidget& parent, Session& session);
};

// A slider with ticks below it.
class SliderWidget final : public BarWidget<Slider, QSlider> {
 public:
  SliderWidget(Slider& slider, QWidget& parent, Session& session);
};

}  // namespace quintara::desktop
