#pragma once

#include <QtCore/QRect>

#include "scene/object.h"

class QPainter;

namespace quintara::desktop {

class Pictures;

// The pixels of its container's surface that a graphical object may cover, whether it is visible or not.
QRect PaintedArea(const Object& object, Pictures& pictures);

// Paints a graphical object on the surface of its container.
void PaintObject(QPainter& painter, const Object& object, Pictures& pictures);

}  // namespace quintara::desktop
