#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtGui/QPixmap>

#include <future>
#include <string_view>

#include "front/zoom.h"

namespace quintara::desktop {

// The pictures inside the executable, decoded when they are first drawn. One that is missing is empty and
// draws nothing.
class Pictures {
 public:
  Pictures();

  const QPixmap& Embedded(std::string_view name);
  // The picture squeezed or spread to a size in pixels of the screen.
  QPixmap Scaled(std::string_view name, const QSize& size);
  // The same in pale grey, for a button that is off.
  QPixmap Off(std::string_view name, const QSize& size);
  // The picture as large as it is shown on a screen with so many pixels to each of a window's.
  QPixmap Shown(std::string_view name, const Zoom& zoom, qreal pixelRatio);

 private:
  // As many as a window shows at a time. A target that grows has hundreds of sizes one after the other.
  static constexpr qsizetype mostSizes = 6;

  std::future<QImage> early_;
  QHash<QString, QPixmap> decoded_;
  QHash<QString, QList<QPixmap>> scaled_;  // the one used last in front
};

}  // namespace quintara::desktop
