#include "desktop/desktop_platform.h"

#include <QtCore/QDateTime>
#include <QtCore/QHash>
#include <QtCore/QRandomGenerator>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "desktop/screens.h"
#include "desktop/session.h"
#include "desktop/units.h"
#include "scene/form.h"
#include "scene/menu.h"

namespace quintara::desktop {
namespace {

Zoom ZoomOf(const Session* session) {
  return session != nullptr ? session->zoom() : Zoom();
}

// While this lives, a handler waits for the user.
class Waiting {
 public:
  explicit Waiting(Session* session) : session_(session) {
    if (session_ != nullptr) session_->BeginWaiting();
  }
  ~Waiting() {
    if (session_ != nullptr) session_->EndWaiting();
  }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  Session* session_;
};

}  // namespace

DesktopPlatform::DesktopPlatform(const ProgramFolders& folders)
    : programFolder_(folders.data), disk_(folders.data.toStdU16String(), folders.own.toStdU16String()) {
  disk_.MakeOwnList();
}

double DesktopPlatform::ScreenWidth() {
  return ToTwips(MainScreenSize().width()) / ZoomOf(session_).factor();
}
double DesktopPlatform::ScreenHeight() {
  return ToTwips(MainScreenSize().height()) / ZoomOf(session_).factor();
}

std::uint64_t DesktopPlatform::Seed() {
  const auto time = static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch());
  return time ^ QRandomGenerator::system()->generate64();
}

void DesktopPlatform::PlaySound(const DataFile& sound) {
  sounds_.Play(QString::fromStdU16String(sound.path.u16string()));
}

void DesktopPlatform::Beep() {
  QApplication::beep();
}

std::int32_t DesktopPlatform::ShowMessageBox(const std::string& text, std::int32_t style,
                                             const std::string& title) {
  constexpr std::int32_t buttonsMask = 0x0F, yesAndNo = 4, iconMask = 0xF0, exclamation = 48;
  constexpr std::int32_t chosenOk = 1, chosenYes = 6, chosenNo = 7;
  const bool asks = (style & buttonsMask) == yesAndNo;
  // A box goes with the window that it belongs to.
  QMessageBox box(session_ != nullptr ? session_->ActiveWindow() : nullptr);
  box.setFont(ToQFont(Font{}, ZoomOf(session_)));
  box.setWindowTitle(ToQString(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQString(text));
  box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No
                              : QMessageBox::StandardButtons(QMessageBox::Ok));
  if ((style & iconMask) == exclamation) box.setIcon(QMessageBox::Warning);
  const Waiting waiting(session_);
  const int chosen = box.exec();
  if (!asks) return chosenOk;
  return chosen == QMessageBox::Yes ? chosenYes : chosenNo;
}

Menu* DesktopPlatform::RunPopupMenu(Form& form, Menu& menu, double x, double y) {
  const Waiting waiting(session_);
  FormWindow* window = session_ != nullptr ? session_->WindowOf(form) : nullptr;
  if (window == nullptr) return nullptr;
  QMenu popup(window);
  popup.setFont(ToQFont(Font{}, window->zoom()));
  QHash<QAction*, Menu*> items;
  for (Menu* item : menu.items()) {
    if (!item->IsVisible()) continue;
    QAction* action =
        item->IsSeparator() ? popup.addSeparator() : popup.addAction(ToQString(item->Caption.Get()));
    action->setEnabled(item->IsEnabled());
    items.insert(action, item);
  }
  return items.value(popup.exec(window->mapToGlobal(window->zoom()(QPoint(ToPixels(x), ToPixels(y))))));
}

void DesktopPlatform::PutOnClipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

void DesktopPlatform::FormShown(Form& form) {
  if (session_ != nullptr) session_->FormShown(form);
}
void DesktopPlatform::FormUnloaded(Form& form) {
  if (session_ != nullptr) session_->FormUnloaded(form);
}
void DesktopPlatform::ProgramEnded() {
  if (session_ != nullptr) session_->ProgramEnded();
}

}  // namespace quintara::desktop
