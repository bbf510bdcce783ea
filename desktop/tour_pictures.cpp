#include <QtWidgets/qdrawutil.h>
#include <QtCore/QCoreApplication>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <utility>

#include "desktop/form_window.h"
#include "desktop/tour_pictures.h"
#include "desktop/units.h"
#include "scene/form.h"

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

TourPictures::TourPictures(const QString& programFolder, Keep keep)
    : keep_(std::move(keep)),
      platform_(programFolder.toStdString()),
      program_(platform_),
      session_(program_.scene(), AssistanceTable(program_)) {
  platform_.Attach(&session_);
  // A caret that blinks would be in one picture and not in the next.
  QApplication::setCursorFlashTime(0);
}

TourPictures::~TourPictures() {
  platform_.Attach(nullptr);
}

bool TourPictures::Picture(std::string_view name, const Form& form) {
  QCoreApplication::processEvents();
  FormWindow* window = OpenWindowOf(form);
  if (window != nullptr) keep_(ToQString(name), window->grab().toImage());
  return window != nullptr;
}

bool TourPictures::PictureWithFrames(std::string_view name, std::initializer_list<const Form*> forms) {
  QCoreApplication::processEvents();
  constexpr int gap = 12;
  QSize size(-gap, 0);
  for (const Form* form : forms) {
    const FormWindow* window = OpenWindowOf(*form);
    if (window == nullptr) return false;
    const QSize framed = WithFrame(window->size());
    size = {size.width() + gap + framed.width(), std::max(size.height(), framed.height())};
  }
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  for (const Form* form : forms) {
    FormWindow& window = *OpenWindowOf(*form);
    PaintFrame(painter, window);
    painter.drawPixmap(frame, frame + titleBar, window.grab());
    painter.translate(WithFrame(window.size()).width() + gap, 0);
  }
  painter.end();
  keep_(ToQString(name), picture);
  return true;
}

FormWindow* TourPictures::OpenWindowOf(const Form& form) const {
  FormWindow* window = session_.WindowOf(form);
  return window != nullptr && window->isVisible() ? window : nullptr;
}

}  // namespace quintara::desktop
