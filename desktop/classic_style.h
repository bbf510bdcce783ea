#pragma once

#include <QtWidgets/QProxyStyle>

namespace quintara::desktop {

// The look of the widgets: the classic one, whose fixed measures grow with the window that a widget is in.
class ClassicStyle final : public QProxyStyle {
 public:
  ClassicStyle() : QProxyStyle("windows") {}

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

}  // namespace quintara::desktop
