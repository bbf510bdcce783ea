#pragma once

#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>

#include "desktop/control.h"
#include "scene/bars.h"

namespace quintara::desktop {

// A scroll bar. Its widget counts from 0 at the top or left end, since it can't have the larger number there.
class ScrollBarWidget final : public QScrollBar, public Control {
 public:
  ScrollBarWidget(ScrollBar& bar, Qt::Orientation orientation, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void HandIn(int position);

  ScrollBar& bar_;
};

// A slider with ticks below it.
class SliderWidget final : public QSlider, public Control {
 public:
  SliderWidget(Slider& slider, QWidget& parent, Session& session);

 protected:
  void ShowLooks() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void HandIn(int position);

  Slider& slider_;
};

}  // namespace quintara::desktop
