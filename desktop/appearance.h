#pragma once

#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPalette>

#include "front/fonts.h"
#include "front/zoom.h"
#include "scene/form.h"

class QWidget;

namespace quintara::desktop {

// Gives the application the classic grey look, whatever the look of the system it runs on.
void SetUpAppearance();

QColor ToQColor(Colour colour);
QFont ToQFont(const Font& font, const Zoom& zoom = Zoom());
// The font of a control: its form's, unless it names one.
template <typename AnyControl>
QFont FontOf(const AnyControl& control, const Zoom& zoom = Zoom()) {
  return ToQFont(control.looks().font.value_or(control.form().looks().font), zoom);
}
QFont::Weight ToQWeight(FontWeight weight);

// The palette of the grey look with other colours for a face and what is written on it.
QPalette PaletteWith(QPalette::ColorRole faceRole, Colour face, QPalette::ColorRole textRole, Colour text);

// Lets the face of a framed widget reach below its frame, whose lines are thinner than a pixel of the window
// where the screen has finer ones.
void FillBehindFrame(QWidget& widget);

}  // namespace quintara::desktop
