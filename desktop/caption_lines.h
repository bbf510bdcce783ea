#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtGui/QFontMetricsF>

namespace quintara::desktop {

// The lines of a caption that is to fit a width in pixels. A line ends where the next word doesn't fit. Of a
// run of blanks at that place as many stay at the end of the line as fit, and the others begin the next one:
// captions use such runs to bring about their breaks and to centre what follows. Blanks that would push a
// word out of a line of its own are left out.
QStringList CaptionLines(const QString& caption, const QFontMetricsF& metrics, qreal width);

}  // namespace quintara::desktop
