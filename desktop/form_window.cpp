#include "desktop/form_window.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMoveEvent>
#include <QtGui/QScreen>
#include <QtGui/QWindow>

#include <utility>

#include "desktop/footer.h"
#include "desktop/keyboard.h"
#include "desktop/screens.h"
#include "desktop/session.h"
#include "desktop/units.h"
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
      place_(form, session.zoom()),
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
  for (const Object* object : session_.assistance().InTabOrder(form_)) {
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
  const bool zoomed = std::exchange(desk_, session_.zoom()) != session_.zoom();
  const int footer = footer_ != nullptr ? footer_->HeightBelow() : 0;
  const bool seated = std::exchange(footerHeight_, footer) != footer;
  if (std::exchange(fresh_, false) || zoomed || seated || seen_ != form_.changes()) FollowFrame();
  surface_.FollowSurface(zoom());
  if (footer_ != nullptr) footer_->Follow(zoom());
  if (focusSeen_ != form_.focusMoves()) FollowFocus();
  focusMark_.Follow();
}

void FormWindow::FollowFrame() {
  setWindowTitle(ToQString(form_.Caption.Get()));
  const Screens screens{FromQt(RoomOn(screen())), FromQt(RoomOnAllScreens())};
  place_.SetFooter(footerHeight_);
  const bool moves = place_.Follow(desk_, screens, isVisible());
  seen_ = form_.changes();
  setFixedSize(ToQSize(place_.size()));
  surface_.resize(ToQSize(place_.surfaceSize()));
  if (footer_ != nullptr) footer_->setGeometry(0, surface_.height(), width(), height() - surface_.height());
  if (moves) move(ToQPoint(place_.place()));
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
  if (isVisible() && !isMinimized() && FromQt(pos()) != place_.place()) place_.MovedTo(FromQt(pos()));
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  // What comes here is of no use to the control that has the focus.
  if (const auto zoom = ZoomByKey(session_.zoom(), *event)) return session_.SetZoom(*zoom);
  const bool isMain = &form_ == session_.scene().forms().front();
  if (event->key() == Qt::Key_Escape && !isMain) {
    close();
  } else if (Object* object = session_.assistance().ForKey(form_, NameOfKey(*event))) {
    session_.Click(*object);
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace quintara::desktop
