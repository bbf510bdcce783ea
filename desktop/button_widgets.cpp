#include "desktop/button_widgets.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

#include <algorithm>

#include "desktop/appearance.h"
#include "desktop/keyboard.h"
#include "desktop/pictures.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/form.h"
#include "scene/input.h"

namespace quintara::desktop {
namespace {

// The font, or the next smaller size at which the caption isn't cut off.
QFont FittingFont(const QFont& font, const QString& caption, int width) {
  const qreal wanted = QFontMetricsF(font).horizontalAdvance(caption);
  if (wanted <= width) return font;
  constexpr int smallest = 7;
  QFont fitting = font;
  fitting.setPixelSize(std::max(static_cast<int>(font.pixelSize() * width / wanted), smallest));
  return fitting;
}

}  // namespace

ButtonWidget::ButtonWidget(Button& button, QWidget& parent, Session& session)
    : QPushButton(&parent), Control(button, *this, session), button_(button) {
  setPalette(PaletteWith(QPalette::Button, button.looks().backColor, QPalette::ButtonText,
                         button.looks().foreColor));
  setMouseTracking(true);
  connect(this, &QPushButton::clicked, this, [this] { session_.Click(button_); });
}

void ButtonWidget::ShowLooks() {
  const int edges = zoom()(6);
  const QString caption = ToQString(button_.Caption.Get());
  const QFont font = FontOf(button_, zoom());
  setFont(FittingFont(font, caption, width() - edges));
  setText(caption);
}

void ButtonWidget::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButtonBevel, option);
  QRect face = rect();
  if (isDown()) face.translate(1, 1);
  const QPixmap picture = session_.pictures().Shown(button_.looks().picture, zoom(), devicePixelRatioF());
  if (picture.isNull()) {
    painter.drawItemText(face, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip, palette(),
                         isEnabled(), text(), QPalette::ButtonText);
  } else {
    const QPixmap shown =
        isEnabled() ? picture : style()->generatedIconPixmap(QIcon::Disabled, picture, &option);
    // Of a picture that is too wide the left part shows, where its sign is.
    constexpr int edge = 3;
    const QSize size = picture.deviceIndependentSize().toSize();
    const QPoint inset(std::max((width() - size.width()) / 2, edge), (height() - size.height()) / 2);
    painter.drawPixmap(face.topLeft() + inset, shown);
  }
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.backgroundColor = palette().button().color();
    focus.rect = rect().adjusted(3, 3, -3, -3);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

void ButtonWidget::mouseMoveEvent(QMouseEvent* event) {
  QPushButton::mouseMoveEvent(event);
  event->accept();
  if (session_.PointerMoved(event->globalPosition().toPoint()))
    session_.Run([this] { UserMovesOnto(button_); });
}

void ButtonWidget::keyPressEvent(QKeyEvent* event) {
  if (PressesButton(*event)) return click();
  QPushButton::keyPressEvent(event);
}

PanelWidget::PanelWidget(SSPanel& panel, QWidget& parent, Session& session)
    : QLabel(&parent), Control(panel, *this, session), panel_(panel) {
  setPalette(
      PaletteWith(QPalette::Window, panel.looks().backColor, QPalette::WindowText, colours::buttonText));
  setAutoFillBackground(true);
  setFrameStyle(QFrame::Panel | QFrame::Raised);
  setLineWidth(1);
  setAlignment(Qt::AlignCenter);
  setTextFormat(Qt::PlainText);
}

void PanelWidget::ShowLooks() {
  setFont(FontOf(panel_, zoom()));
  setText(ToQString(panel_.Caption.Get()));
}

}  // namespace quintara::desktop
