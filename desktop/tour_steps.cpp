#include <QtWidgets/qdrawutil.h>
#include <QtCore/QCoreApplication>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "desktop/form_window.h"
#include "desktop/tour.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara::desktop {
namespace {

constexpr int frame = 4;  // of a window; its title bar is inside
constexpr int titleBar = 20;

QSize WithFrame(const QSize& window) {
  return window + QSize(2 * frame, 2 * frame + titleBar);
}

void PaintFrame(QPainter& painter, const QWidget& window) {
  const QRect outer(QPoint(0, 0), WithFrame(window.size()));
  const QRect title(frame, frame, window.width(), titleBar - 2);
  qDrawWinPanel(&painter, outer, window.palette(), false, &window.palette().brush(QPalette::Window));
  QLinearGradient gradient(title.topLeft(), title.topRight());
  gradient.setColorAt(0, QColor(0, 0, 128));
  gradient.setColorAt(1, QColor(16, 132, 208));
  painter.fillRect(title, gradient);
  QFont bold = window.font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.setPen(Qt::white);
  painter.drawText(title.adjusted(5, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, window.windowTitle());
}

}  // namespace

Tour::Tour(const QString& programFolder, Keep keep)
    : keep_(std::move(keep)), platform_(programFolder), program_(platform_), session_(program_.scene()) {
  platform_.Attach(&session_);
  // A caret that blinks would be in one picture and not in the next.
  QApplication::setCursorFlashTime(0);
  // The session lets the game's clock follow real time. It never has to where that clock is far ahead.
  constexpr std::int64_t day = 86'400'000;
  program_.scene().dispatcher().AdvanceTo(day);
}

Tour::~Tour() {
  platform_.Attach(nullptr);
}

void Tour::Run(const std::function<void()>& input) {
  session_.Run(input);
  if (!platform_.boxText().empty()) throw std::runtime_error("the game said: " + platform_.boxText());
}

void Tour::Start() {
  Run([this] { program_.Start(); });
}

void Tour::Click(Object& object) {
  InputResult result = InputResult::NoTarget;
  Run([&] { result = UserClicks(object); });
  if (result == InputResult::NoTarget)
    throw std::runtime_error(FullName(object) + " could not be clicked on");
}

void Tour::Drag(ScrollBar& bar, std::int16_t value) {
  Run([&] { UserDragsTo(bar, value); });
}

void Tour::Type(TextBox& box, const QString& text) {
  for (const QChar character : text) Run([&] { UserTypes(box, character.unicode()); });
}

void Tour::Advance(std::int64_t milliseconds) {
  Run([&] { program_.scene().dispatcher().Advance(milliseconds); });
}

void Tour::AdvanceUntil(const std::function<bool()>& reached) {
  Dispatcher& dispatcher = program_.scene().dispatcher();
  constexpr std::int64_t most = 60'000;
  const std::int64_t end = dispatcher.now() + most;
  Run([&] {
    while (!reached() && dispatcher.now() < end) dispatcher.Advance(1);
  });
  if (!reached()) throw std::runtime_error("the game waited in vain for what comes next");
}

void Tour::Picture(const QString& name, const Form& form) {
  QCoreApplication::processEvents();
  keep_(name, WindowOf(form).grab().toImage());
}

void Tour::PictureWithFrames(const QString& name, std::initializer_list<const Form*> forms) {
  QCoreApplication::processEvents();
  constexpr int gap = 12;
  QSize size(-gap, 0);
  for (const Form* form : forms) {
    const QSize window = WithFrame(WindowOf(*form).size());
    size = {size.width() + gap + window.width(), std::max(size.height(), window.height())};
  }
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  for (const Form* form : forms) {
    FormWindow& window = WindowOf(*form);
    PaintFrame(painter, window);
    painter.drawPixmap(frame, frame + titleBar, window.grab());
    painter.translate(WithFrame(window.size()).width() + gap, 0);
  }
  painter.end();
  keep_(name, picture);
}

FormWindow& Tour::WindowOf(const Form& form) const {
  FormWindow* window = session_.WindowOf(form);
  if (window == nullptr || !window->isVisible())
    throw std::runtime_error("the window of " + FullName(form) + " did not open");
  return *window;
}

}  // namespace quintara::desktop
