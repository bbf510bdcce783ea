#pragma once

#include <cstdint>
#include <string_view>

#include "scene/controls.h"

// What the user does with mouse and keyboard, in the words of the Scene. Windows and scripts hand it in here,
// so both meet the same rules. While a handler runs, input waits in the order in which it came.

namespace quintara {

// Done also stands for input that waits. NoTarget: the object is hidden, disabled, or its form is not shown.
enum class InputResult { Done, NoTarget };

enum class BarEnd { Min, Max };

// What receives the mouse where the object is: the object itself, or the nearest container that does where it
// lets the mouse through. Null where it is not shown. A Line or Shape never takes the mouse; a Label or Image
// does while it is enabled. The same goes for the containers around it up to the form, which takes what is
// left.
Object* MouseReceiver(Object& object);

// The front-most object that receives the mouse at a place on the form's inner area, in twips.
Object* ObjectAt(Form& form, double left, double top);

// A press and release over a button, an image, or anything else, which has no such event.
InputResult UserClicks(Object& object);

// The pointer moves onto the object: MouseMove goes to what receives the mouse there.
InputResult UserMovesOnto(Object& object);

// The thumb is dragged to a value and let go. A value outside the range becomes the nearest one inside.
InputResult UserDragsTo(ScrollBar& bar, std::int16_t value);
InputResult UserDragsTo(Slider& slider, std::int32_t value);
// The arrow at one end is pressed, or the trough on that side of the thumb.
InputResult UserPressesArrow(ScrollBar& bar, BarEnd end);
InputResult UserPressesTrough(ScrollBar& bar, BarEnd end);
InputResult UserPressesTrough(Slider& slider, BarEnd end);

// One key: KeyPress comes first, then its effect on the text. 8 takes the last character away, other codes
// below 32 and ones that are no character leave the text as it is.
InputResult UserTypes(TextBox& box, std::int32_t character);
// The window changed the text itself (paste, insert in the middle). Line breaks become blanks, so that a text
// pasted in stays one line.
InputResult UserEdits(TextBox& box, std::string_view text);

InputResult UserSelects(RichTextBox& box, std::int32_t start, std::int32_t length);

// The close box of the window.
InputResult UserCloses(Form& form);

}  // namespace quintara
