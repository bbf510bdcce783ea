#include "desktop/appearance.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include "desktop/classic_style.h"
#include "desktop/units.h"

namespace quintara::desktop {
namespace {

QPalette ClassicPalette() {
  const QColor face(0xC0, 0xC0, 0xC0);
  const QColor shadow(0x80, 0x80, 0x80);
  QPalette palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const QColor text = group == QPalette::Disabled ? shadow : QColor(Qt::black);
    palette.setColorGroup(group, text, face, Qt::white, shadow, QColor(0xA0, 0xA0, 0xA0), text, Qt::white,
                          Qt::white, face);
    palette.setColor(group, QPalette::Midlight, QColor(0xDF, 0xDF, 0xDF));
    palette.setColor(group, QPalette::Shadow, Qt::black);
    palette.setColor(group, QPalette::ButtonText, text);
    palette.setColor(group, QPalette::Highlight, QColor(0x00, 0x00, 0x80));
    palette.setColor(group, QPalette::HighlightedText, Qt::white);
    palette.setColor(group, QPalette::AlternateBase, Qt::white);
    palette.setColor(group, QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
    palette.setColor(group, QPalette::ToolTipText, Qt::black);
    palette.setColor(group, QPalette::PlaceholderText, shadow);
    palette.setColor(group, QPalette::Link, QColor(0x00, 0x00, 0xFF));
    palette.setColor(group, QPalette::LinkVisited, QColor(0x80, 0x00, 0x80));
  }
  return palette;
}

void SubstituteFonts() {
  for (const FontStandIns& row : StandInsForFonts()) {
    QStringList standIns;
    for (const std::string_view font : row.standIns) standIns.append(ToQString(font));
    for (const std::string_view font : row.named) QFont::insertSubstitutions(ToQString(font), standIns);
  }
}

}  // namespace

void SetUpAppearance() {
  SubstituteFonts();
  QApplication::setStyle(new ClassicStyle);
  QApplication::setPalette(ClassicPalette());
  QApplication::setFont(ToQFont(Font{}));
}

QColor ToQColor(Colour colour) {
  const std::uint32_t direct = DirectColour(colour);
  return QColor::fromRgb(static_cast<int>(direct & 0xFF), static_cast<int>(direct >> 8 & 0xFF),
                         static_cast<int>(direct >> 16 & 0xFF));
}

QFont ToQFont(const Font& font, const Zoom& zoom) {
  QFont result(ToQString(font.name));
  result.setPixelSize(zoom(ToPixelSize(font.points)));
  // Letters keep their true widths; rounded ones would break captions in other places.
  result.setHintingPreference(QFont::PreferVerticalHinting);
  result.setWeight(ToQWeight(WeightOf(font.name, font.bold)));
  result.setItalic(IsSlanted(font));
  return result;
}

QFont::Weight ToQWeight(FontWeight weight) {
  switch (weight) {
    case FontWeight::Black: return QFont::Black;
    case FontWeight::Bold: return QFont::Bold;
    case FontWeight::Normal: break;
  }
  return QFont::Normal;
}

QPalette PaletteWith(QPalette::ColorRole faceRole, Colour face, QPalette::ColorRole textRole, Colour text) {
  QPalette palette = QApplication::palette();
  palette.setColor(faceRole, ToQColor(face));
  for (const auto group : {QPalette::Active, QPalette::Inactive})
    palette.setColor(group, textRole, ToQColor(text));
  return palette;
}

void FillBehindFrame(QWidget& widget) {
  widget.setBackgroundRole(QPalette::Base);
  widget.setAutoFillBackground(true);
}

}  // namespace quintara::desktop
