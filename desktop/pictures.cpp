#include "desktop/pictures.h"

#include <algorithm>

#include "desktop/units.h"

namespace quintara::desktop {
namespace {

constexpr const char* shownFirst = "landscape";

// To tell the format keeps Qt from looking for it in all its plugins.
QImage Decode(const QString& name) {
  return QImage(QString(":/pictures/%1.png").arg(name), "PNG");
}

// Every colour as a grey that is half way to the grey of the panels, as classic as a button's caption.
QImage Paled(const QImage& picture) {
  constexpr int face = 0xC0;
  QImage paled = picture.convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < paled.height(); ++y) {
    for (int x = 0; x < paled.width(); ++x) {
      const QRgb colour = paled.pixel(x, y);
      const int grey = (qGray(colour) + face) / 2;
      paled.setPixel(x, y, qRgba(grey, grey, grey, qAlpha(colour)));
    }
  }
  return paled;
}

}  // namespace

// By far the largest picture is on show from the start. It is decoded while the fonts are being looked up.
Pictures::Pictures() : early_(std::async(std::launch::async, &Decode, QString(shownFirst))) {}

const QPixmap& Pictures::Embedded(std::string_view name) {
  const QString key = ToQString(name);
  auto found = decoded_.find(key);
  if (found == decoded_.end()) {
    const bool early = key == shownFirst && early_.valid();
    const QImage picture = early ? early_.get() : name.empty() ? QImage() : Decode(key);
    found = decoded_.insert(key, QPixmap::fromImage(picture));
  }
  return *found;
}

QPixmap Pictures::Scaled(std::string_view name, const QSize& size) {
  const QPixmap& picture = Embedded(name);
  if (picture.isNull() || size.isEmpty() || picture.size() == size) return picture;
  QList<QPixmap>& known = scaled_[ToQString(name)];
  const auto fits = [&](const QPixmap& scaled) { return scaled.size() == size; };
  const auto found = std::find_if(known.begin(), known.end(), fits);
  if (found != known.end()) {
    std::rotate(known.begin(), found, found + 1);
  } else {
    if (known.size() == mostSizes) known.removeLast();
    known.prepend(picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  return known.front();
}

QPixmap Pictures::Off(std::string_view name, const QSize& size) {
  const QString key = ToQString(name) + " off";
  if (!decoded_.contains(key)) decoded_.insert(key, QPixmap::fromImage(Paled(Embedded(name).toImage())));
  return Scaled(key.toStdString(), size);
}

QPixmap Pictures::Shown(std::string_view name, const Zoom& zoom, qreal pixelRatio) {
  QPixmap shown = Scaled(name, Embedded(name).size() * (zoom.factor() * pixelRatio));
  shown.setDevicePixelRatio(pixelRatio);
  return shown;
}

}  // namespace quintara::desktop
