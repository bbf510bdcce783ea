#include "desktop/strip.h"

#include <QtWidgets/qdrawutil.h>
#include <QtGui/QAccessible>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QPainter>

#include <utility>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "front/companion.h"
#include "program/program.h"

namespace quintara::desktop {
namespace {

constexpr int stripHeight = 24, buttonWidth = 26, stripGap = 2, textInset = 6;  // at a zoom of 1
constexpr Font sentenceFont{"Arial", 9.75};

}  // namespace

Strip::Strip(FormWindow& window, Session& session, Program& program, const Companion& companion)
    : Footer(&window),
      window_(window),
      session_(session),
      companion_(companion),
      log_(new ShotLog(window, companion.shots())),
      trace_(new TraceLayer(*window.WidgetOf(program.quintara().profile), program.quintara(),
                            companion.shots())),
      actions_(window, session, program, *log_),
      sentence_(this),
      buttons_{StripButton{actions_.trace, StripSign::Trace, *this},
               StripButton{actions_.mute, StripSign::Sound, *this},
               StripButton{actions_.smaller, StripSign::Minus, *this},
               StripButton{actions_.larger, StripSign::Plus, *this},
               StripButton{actions_.fullScreen, StripSign::FullScreen, *this},
               StripButton{actions_.menu, StripSign::Menu, *this}} {
  sentence_.setTextFormat(Qt::PlainText);
}

int Strip::HeightBelow() const {
  return session_.settings().strip ? stripHeight : 0;
}

void Strip::Follow(const Zoom& zoom) {
  actions_.Follow();
  trace_->Follow(session_.settings().trace, zoom);
  log_->Follow(zoom);
  if (!session_.settings().strip) {
    // Left to itself, the focus of a button would go on to the next one that shows.
    if (isVisible()) window_.DropFocus(*this);
    return hide();
  }
  if (std::exchange(zoom_, zoom) != zoom) LayOut();
  show();
  const QString sentence = ToQString(companion_.Sentence());
  if (std::exchange(said_, sentence) == sentence) return;
  ShowSentence();
  QAccessibleEvent news(&sentence_, QAccessible::Alert);
  QAccessible::updateAccessibility(&news);
}

void Strip::LayOut() {
  int right = width() - zoom_(stripGap);
  for (auto button = buttons_.rbegin(); button != buttons_.rend(); ++button) {
    const int left = right - zoom_(buttonWidth);
    button->Follow(zoom_);
    button->setGeometry(left, stripGap, right - left, height() - 2 * stripGap + 1);
    right = left;
  }
  sentence_.setFont(ToQFont(sentenceFont, zoom_));
  sentence_.setGeometry(zoom_(stripGap + textInset), 0, right - zoom_(stripGap + 2 * textInset), height());
  ShowSentence();
}

// What has no room is cut off, and stands in the tool tip.
void Strip::ShowSentence() {
  const QString shown = sentence_.fontMetrics().elidedText(said_, Qt::ElideRight, sentence_.width());
  sentence_.setText(shown);
  sentence_.setToolTip(shown == said_ ? QString() : said_);
  sentence_.setAccessibleName(said_);
}

// The sentence stands in a sunken field.
void Strip::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  painter.setPen(palette().light().color());
  painter.drawLine(0, 0, width(), 0);
  const QRect field(zoom_(stripGap), stripGap,
                    sentence_.geometry().right() + zoom_(textInset) - zoom_(stripGap),
                    height() - 2 * stripGap);
  qDrawShadePanel(&painter, field, palette(), true);
}

void Strip::resizeEvent(QResizeEvent*) {
  LayOut();
}

void Strip::contextMenuEvent(QContextMenuEvent* event) {
  actions_.OpenMenuAt(event->globalPos());
}

void SeatStrip(Session& session, Program& program, const Companion& companion) {
  session.SetFooter(program.quintara(),
                    [&](FormWindow& window) { return new Strip(window, session, program, companion); });
}

}  // namespace quintara::desktop
