#include "desktop/form_window.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QMoveEvent>
#include <QtGui/QScreen>

#include <algorithm>
#include <utility>

#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/form.h"
#include "scene/input.h"

namespace quintara::desktop {
namespace {

constexpr Qt::WindowFlags windowKind = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                       Qt::WindowCloseButtonHint;

// The nearest place at which the user can take hold of the window's title bar.
QPoint WithinReach(const QPoint& place, int width) {
  constexpr int grip = 80;
  constexpr int titleBar = 40;
  const QRect screens = QGuiApplication::primaryScreen()->availableVirtualGeometry();
  const auto between = [](int low, int value, int high) { return std::max(low, std::min(value, high)); };
  return {between(screens.left() + grip - width, place.x(), screens.right() - grip),
          between(screens.top(), place.y(), screens.bottom() - titleBar)};
}

}  // namespace

FormWindow::FormWindow(Form& form, Session& session)
    : QWidget(nullptr, windowKind), form_(form), session_(session), surface_(form, *this, session) {
  // No control has the focus until the user or a handler gives it to one.
  setFocus();
}

void FormWindow::Follow() {
  if (std::exchange(fresh_, false) || seen_ != form_.changes()) {
    seen_ = form_.changes();
    FollowFrame();
  }
  surface_.FollowSurface();
  if (focusSeen_ != form_.focusMoves()) FollowFocus();
}

void FormWindow::FollowFrame() {
  setWindowTitle(ToQString(form_.Caption.Get()));
  const QSize inner(ToPixels(form_.InnerWidth()), ToPixels(form_.InnerHeight()));
  setFixedSize(inner);
  surface_.resize(inner);
  const QPoint wanted(ToPixels(form_.Left.Get()), ToPixels(form_.Top.Get()));
  if (wanted == wanted_ && isVisible()) return;
  wanted_ = wanted;
  placed_ = WithinReach(wanted, inner.width());
  move(placed_);
}

void FormWindow::FollowFocus() {
  focusSeen_ = form_.focusMoves();
  if (form_.focus() == nullptr) return;
  if (QWidget* widget = WidgetOf(*form_.focus())) widget->setFocus();
}

void FormWindow::BringToFront() {
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

QWidget* FormWindow::WidgetOf(const Object& object) const {
  if (object.container() == nullptr) return nullptr;
  const Object& around = object.container()->object();
  const Surface* surface =
      around.container() == nullptr ? &surface_ : dynamic_cast<const Surface*>(WidgetOf(around));
  return surface != nullptr ? surface->WidgetOf(object) : nullptr;
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The Scene decides: it takes the window away when it unloads the form.
  event->ignore();
  session_.Run([this] { UserCloses(form_); });
}

void FormWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (!isVisible() || isMinimized() || pos() == placed_) return;
  // The user moved the window. Other forms are placed beside this one, so the Scene has to know.
  const QPoint old = placed_;
  placed_ = wanted_ = pos();
  if (placed_.x() != old.x()) form_.Left = ToTwips(placed_.x());
  if (placed_.y() != old.y()) form_.Top = ToTwips(placed_.y());
}

}  // namespace quintara::desktop
