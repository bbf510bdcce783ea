#pragma once

#include <optional>
#include <string>

#include "front/zoom.h"

class QAbstractSlider;
class QKeyEvent;

namespace quintara::desktop {

// Return or Enter, which press a button as Space does. A key that is held down presses once.
bool PressesButton(const QKeyEvent& event);

// Moves a bar by a key. Up, Left, Page Up and Home lead to its top or left end, whichever value stands there.
// False: the key is none of those.
bool MoveByKey(QAbstractSlider& bar, const QKeyEvent& event);

// Ctrl with plus, minus or 0: how large windows are to be from now on.
std::optional<Zoom> ZoomByKey(const Zoom& zoom, const QKeyEvent& event);

// A key as the tables of assistance write it: "S", "F1", "Ctrl+C".
std::string NameOfKey(const QKeyEvent& event);

}  // namespace quintara::desktop
