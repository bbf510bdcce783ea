#include "desktop/pictures.h"

#include <QtCore/QFile>
#include <QtGui/QPixmapCache>

#include "desktop/units.h"

namespace quintara::desktop {

Pictures::Pictures() {
  // Room for every scaled picture of a window that fills a large screen.
  constexpr int kilobytes = 128 * 1024;
  QPixmapCache::setCacheLimit(kilobytes);
}

const QPixmap& Pictures::Embedded(std::string_view name) {
  const QString key = ToQString(name);
  auto found = decoded_.find(key);
  if (found == decoded_.end()) {
    const QString stem = ":/pictures/" + key;
    const QString path = QFile::exists(stem + ".png") ? stem + ".png" : stem + ".bmp";
    found = decoded_.insert(key, name.empty() ? QPixmap() : QPixmap(path));
  }
  return *found;
}

QPixmap Pictures::Scaled(std::string_view name, const QSize& size) {
  const QPixmap& picture = Embedded(name);
  if (picture.isNull() || size.isEmpty() || picture.size() == size) return picture;
  const QString key = QString("%1 %2x%3").arg(ToQString(name)).arg(size.width()).arg(size.height());
  QPixmap scaled;
  if (!QPixmapCache::find(key, &scaled)) {
    scaled = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPixmapCache::insert(key, scaled);
  }
  return scaled;
}

QPixmap Pictures::Shown(std::string_view name, const Zoom& zoom, qreal pixelRatio) {
  QPixmap shown = Scaled(name, Embedded(name).size() * (zoom.factor() * pixelRatio));
  shown.setDevicePixelRatio(pixelRatio);
  return shown;
}

}  // namespace quintara::desktop
