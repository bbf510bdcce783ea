#pragma once

#include <QtCore/QHash>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QPixmap>

#include <string_view>

namespace quintara::desktop {

// The pictures inside the executable, decoded when they are first drawn. One that is missing is empty and
// draws nothing.
class Pictures {
 public:
  const QPixmap& Embedded(std::string_view name);
  // The picture squeezed or spread to a size in pixels of the screen.
  QPixmap Scaled(std::string_view name, const QSize& size);

 private:
  QHash<QString, QPixmap> decoded_;
};

}  // namespace quintara::desktop
