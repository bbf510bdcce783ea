#include "desktop/form_window.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMoveEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <algorithm>
#include <utility>

#include "desktop/assistance.h"
#include "desktop/keyboard.h"
#include "desktop/screens.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "front/placement.h"
#include "scene/form.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara::desktop {
namespace {

constexpr Qt::WindowFlags windowKind = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                       Qt::WindowCloseButtonHint;

}  // namespace

FormWindow::FormWindow(Form& form, Session& session)
    : QWidget(nullptr, windowKind),
      form_(form),
      session_(session),
      desk_(session.zoom()),
      surface_(form, *this, session),
      focusMark_(*this) {
  LayTabOrder();
  // No control has the focus until the user or a handler gives it to one.
  setFocus();
  create();
  connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::FollowScreen);
  FollowScreen();
}

void FormWindow::LayTabOrder() {
  // Only what can have the focus takes part, and the order begins at the window.
  setFocusPolicy(Qt::ClickFocus);
  QWidget* last = this;
  for (const Object* object : InTabOrder(form_)) {
    QWidget* widget = WidgetOf(*object);
    if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
    setTabOrder(last, widget);
    last = widget;
  }
  setFocusPolicy(Qt::NoFocus);
}

// Another screen may have other room and finer pixels, and so may the same one later.
void FormWindow::FollowScreen() {
  const auto lookAgain = [this] {
    fresh_ = true;
    Follow();
  };
  disconnect(screenWatch_);
  if (screen() != nullptr)
    screenWatch_ = connect(screen(), &QScreen::availableGeometryChanged, this, lookAgain);
  if (isVisible()) lookAgain();
}

void FormWindow::Follow() {
  if (desk_ != session_.zoom()) FollowDesk();
  if (std::exchange(fresh_, false) || seen_ != form_.changes()) {
    seen_ = form_.changes();
    FollowFrame();
  }
  surface_.FollowSurface(zoom_);
  if (focusSeen_ != form_.focusMoves()) FollowFocus();
  focusMark_.Follow();
}

// The desk has grown or shrunk below the window, which keeps its place on the screen.
void FormWindow::FollowDesk() {
  desk_ = session_.zoom();
  form_.Left = ToTwips(placed_.x()) / desk_.factor();
  form_.Top = ToTwips(placed_.y()) / desk_.factor();
  wanted_ = WantedPlace();
  fresh_ = true;
}

void FormWindow::FollowFrame() {
  setWindowTitle(ToQString(form_.Caption.Get()));
  const PixelSize inner{ToPixels(form_.InnerWidth()), ToPixels(form_.InnerHeight())};
  const PixelRectangle room = FromQt(RoomOn(screen()));
  const bool zoomed = std::exchange(zoom_, FittingZoom(desk_, inner, room)) != zoom_;
  const QSize shown = QSize(zoom_(inner.width), zoom_(inner.height));
  setFixedSize(shown);
  surface_.resize(shown);
  const QPoint wanted = WantedPlace();
  if (wanted == wanted_ && isVisible() && !zoomed) return;
  wanted_ = wanted;
  PixelPoint place = WithinReach(FromQt(wanted), shown.width(), FromQt(RoomOnAllScreens()));
  if (zoom_ != desk_) {
    const PixelSize outer{shown.width() + windowFrame.width, shown.height() + windowFrame.height};
    place = WhollySeen(place, outer, room);
  }
  placed_ = ToQPoint(place);
  move(placed_);
}

QPoint FormWindow::WantedPlace() const {
  return {ToPixels(form_.Left.Get() * desk_.factor()), ToPixels(form_.Top.Get() * desk_.factor())};
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

// Left to itself, the focus would go on to the next button, where a blank that the user types may end the
// game.
void FormWindow::DropFocus(QWidget& control) {
  QWidget* focused = focusWidget();
  if (focused != &control && !control.isAncestorOf(focused)) return;
  lostFocus_ = focused;
  setFocus();
}

bool FormWindow::focusNextPrevChild(bool next) {
  if (focusWidget() != this || lostFocus_ == nullptr) return QWidget::focusNextPrevChild(next);
  const auto takesTab = [this](const QWidget& widget) {
    return widget.isEnabled() && widget.isVisibleTo(this) && (widget.focusPolicy() & Qt::TabFocus) != 0;
  };
  QWidget* to = lostFocus_;
  do {
    to = next ? to->nextInFocusChain() : to->previousInFocusChain();
  } while (to != lostFocus_ && !takesTab(*to));
  to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
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
  const QPoint old = std::exchange(placed_, pos());
  if (placed_.x() != old.x()) form_.Left = ToTwips(placed_.x()) / desk_.factor();
  if (placed_.y() != old.y()) form_.Top = ToTwips(placed_.y()) / desk_.factor();
  wanted_ = WantedPlace();
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  // What comes here is of no use to the control that has the focus.
  if (const auto zoom = ZoomByKey(session_.zoom(), *event)) return session_.SetZoom(*zoom);
  if (event->key() == Qt::Key_Escape) {
    const bool isMain = &form_ == session_.scene().forms().front();
    if (!isMain) close();
  } else if (Object* object = ObjectForKey(form_, *event)) {
    if (!event->isAutoRepeat()) session_.Run([object] { UserClicks(*object); });
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace quintara::desktop
