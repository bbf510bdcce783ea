#include "desktop/desktop_platform.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QRandomGenerator>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

#include <stdexcept>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "desktop/screens.h"
#include "desktop/units.h"
#include "front/uninstalling.h"
#include "scene/form.h"
#include "scene/menu.h"

namespace quintara::desktop {
namespace {

Zoom ZoomOf(const Session* session) {
  return session != nullptr ? session->zoom() : Zoom();
}

std::string Native(const QString& folder) {
  return QDir::toNativeSeparators(folder).toStdString();
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
    : programFolder_(folders.data),
      howToUninstall_(HowToUninstall(folders.installed ? "" : Native(QFileInfo(folders.data).path()),
                                     Native(folders.own))),
      disk_(folders.data.toStdU16String(), folders.own.toStdU16String()) {
  disk_.MakeOwnList();
}

double DesktopPlatform::ScreenWidth() {
  return ToTwips(MainScreenSize().width()) / ZoomOf(windows()).factor();
}
double DesktopPlatform::ScreenHeight() {
  return ToTwips(MainScreenSize().height()) / ZoomOf(windows()).factor();
}

std::uint64_t DesktopPlatform::Seed() {
  const auto time = static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch());
  return time ^ QRandomGenerator::system()->generate64();
}

void DesktopPlatform::PlaySound(const DataFile& sound) {
  sounds_.Play(QString::fromStdU16String(sound.path.u16string()));
}

void DesktopPlatform::Beep() {
  if (!isSilent_) QApplication::beep();
}

void DesktopPlatform::SetVolume(int percent) {
  isSilent_ = percent == 0;
  sounds_.SetVolume(percent);
}

void DesktopPlatform::ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) {
  reply(RunMessageBox(box));
}

void DesktopPlatform::OpenPopupMenu(Form& form, Menu& menu, double x, double y,
                                    std::function<void(Menu*)> reply) {
  reply(RunPopupMenu(form, menu, x, y));
}

Answer DesktopPlatform::RunMessageBox(const MessageBox& question) {
  const bool asks = question.buttons == MessageBox::Buttons::YesAndNo;
  // A box goes with the window that it belongs to.
  QMessageBox box(windows() != nullptr ? windows()->ActiveWindow() : nullptr);
  box.setFont(ToQFont(Font{}, ZoomOf(windows())));
  box.setWindowTitle(ToQString(question.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ToQString(question.text));
  box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No
                              : QMessageBox::StandardButtons(QMessageBox::Ok));
  if (asks) {
    // What can't be undone takes more than a blank or Enter typed in passing.
    box.setDefaultButton(QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
  }
  if (IsNoteOnUninstalling(question)) box.setInformativeText(ToQString(howToUninstall_));
  box.setIcon(QMessageBox::Warning);
  const Waiting waiting(windows());
  const int chosen = box.exec();
  if (!asks) return Answer::Ok;
  return chosen == QMessageBox::Yes ? Answer::Yes : Answer::No;
}

Menu* DesktopPlatform::RunPopupMenu(Form& form, Menu& menu, double x, double y) {
  const Waiting waiting(windows());
  FormWindow* window = windows() != nullptr ? windows()->WindowOf(form) : nullptr;
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
  return items.value(
      popup.exec(window->mapToGlobal(ToQPoint(window->zoom()(PixelPoint{ToPixels(x), ToPixels(y)})))));
}

void DesktopPlatform::PutOnClipboard(const std::string& text) {
  QGuiApplication::clipboard()->setText(ToQString(text));
}

// Out of the handler, up to the session, which tells it and goes on.
void DesktopPlatform::FaultFound(const std::string& what) {
  throw std::runtime_error(what);
}

}  // namespace quintara::desktop
