#pragma once

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include "desktop/focus_mark.h"
#include "desktop/surface.h"
#include "front/window_place.h"

namespace quintara {
class Form;
}

namespace quintara::desktop {

class Footer;
class Session;

// The window of a form.
class FormWindow final : public QWidget {
 public:
  FormWindow(Form& form, Session& session);

  // Takes over what has changed in the Scene since the last call.
  void Follow();
  void BringToFront();
  // What stands below the form from now on; it goes with the window.
  void SetFooter(Footer* footer) { footer_ = footer; }
  // The control can't have the focus any more; nothing has it until the user moves on from there.
  void DropFocus(QWidget& control);
  // The widget of an object that has a surface of its own, or null.
  QWidget* WidgetOf(const Object& object) const;
  Surface& surface() { return surface_; }
  // How large it is shown: as all windows are, or smaller where the screen has no room for that.
  const Zoom& zoom() const { return place_.zoom(); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void LayTabOrder();
  void FollowScreen();
  void FollowFrame();
  void FollowFocus();

  Form& form_;
  Session& session_;
  WindowPlace place_;
  Zoom desk_;  // how large all windows are to be, as it was seen last
  Surface surface_;
  FocusMark focusMark_;
  Footer* footer_ = nullptr;
  int footerHeight_ = 0;
  QPointer<QWidget> lostFocus_;  // where the focus was before nothing had it
  QMetaObject::Connection screenWatch_;
  ChangeCount seen_ = 0;
  ChangeCount focusSeen_ = 0;
  bool fresh_ = true;
};

}  // namespace quintara::desktop
