#pragma once

#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

#include "desktop/control.h"
#include "scene/bars.h"

namespace quintara::desktop {

// What widgets of both kinds of bar do. They count from 0 at the top or left end, since Qt's can't have the
// larger number there.
template <typename Bar, typename QtBar>
class BarWidget : public QtBar, public Control {
 protected:
  BarWidget(Bar& bar, Qt::Orientation orientation, QWidget& parent, Session& session);

  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void HandIn(int position);

  Bar& bar_;
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
