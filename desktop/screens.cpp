#include "desktop/screens.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>

namespace quintara::desktop {
namespace {

constexpr QRect usual(0, 0, 1920, 1080);

}  // namespace

QSize MainScreenSize() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->size() : usual.size();
}

QRect RoomOn(const QScreen* screen) {
  return screen != nullptr ? screen->availableGeometry() : usual;
}

QRect RoomOnAllScreens() {
  const QScreen* screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->availableVirtualGeometry() : usual;
}

}  // namespace quintara::desktop
