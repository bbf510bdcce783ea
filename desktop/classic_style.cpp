#include "desktop/classic_style.h"

#include "desktop/form_window.h"

namespace quintara::desktop {
namespace {

bool GrowsWithItsWindow(QStyle::PixelMetric metric) {
  switch (metric) {
    case QStyle::PM_ScrollBarExtent:
    case QStyle::PM_ScrollBarSliderMin:
    case QStyle::PM_SliderLength: return true;
    default: return false;
  }
}

}  // namespace

int ClassicStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int pixels = QProxyStyle::pixelMetric(metric, option, widget);
  if (widget == nullptr || !GrowsWithItsWindow(metric)) return pixels;
  const auto* window = dynamic_cast<const FormWindow*>(widget->window());
  return window != nullptr ? window->zoom()(pixels) : pixels;
}

}  // namespace quintara::desktop
