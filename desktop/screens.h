#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>

class QScreen;

// The room for windows. A machine may be without a screen for a while, when it was taken away or sleeps; then
// one of a usual size is taken for granted.

namespace quintara::desktop {

// The size of the screen that a program starts on.
QSize MainScreenSize();

// What task bars leave free on one screen. Null: the screen is gone.
QRect RoomOn(const QScreen* screen);

// The same of all screens together.
QRect RoomOnAllScreens();

}  // namespace quintara::desktop
