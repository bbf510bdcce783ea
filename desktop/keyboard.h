#pragma once

#include <optional>
#include <string>

#include "front/bar_values.h"
#include "front/zoom.h"

class QKeyEvent;

namespace quintara::desktop {

// Return or Enter, which press a button as Space does. A key that is held down presses once.
bool PressesButton(const QKeyEvent& event);

// Return or Enter, whichever way it is pressed.
bool IsEnter(const QKeyEvent& event);

// How a key moves a bar; nothing where it does not.
std::optional<BarMove> MoveByKey(const QKeyEvent& event);

// The character that a key types; nothing for keys that move or command.
std::optional<char> CharacterByKey(const QKeyEvent& event);

// Ctrl with plus, minus or 0: how large windows are to be from now on.
std::optional<Zoom> ZoomByKey(const Zoom& zoom, const QKeyEvent& event);

// A key as the tables of assistance write it: "S", "F1", "Ctrl+C".
std::string NameOfKey(const QKeyEvent& event);

}  // namespace quintara::desktop
