#include "desktop/session.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <exception>
#include <utility>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "scene/form.h"
#include "scene/input.h"
#include "scene/scene.h"

namespace quintara::desktop {
namespace {

// A window may go in a handler of its own button, so it stays alive until that is over.
void Retire(FormWindow* window) {
  window->hide();
  window->deleteLater();
}

}  // namespace

Session::Session(Scene& scene, AssistanceTable assistance)
    : scene_(scene), assistance_(std::move(assistance)), pacing_(scene) {
  realTime_.start();
  nextTick_.setSingleShot(true);
  nextTick_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&nextTick_, &QTimer::timeout, [this] { Tick(); });
}

Session::~Session() {
  for (auto& [form, window] : windows_) delete window.release();
}

void Session::Run(const std::function<void()>& input) {
  pacing_.CatchUp(realTime_.elapsed());
  RunGuarded(input);
}

void Session::Click(Object& control) {
  // A press of what is off is none, and the next one is not the second.
  if (IsShown(control) && control.IsEnabled() && !presses_.Counts(control)) return;
  Run([&control] { UserClicks(control); });
}

void Session::Tick() {
  RunGuarded([this] { pacing_.Tick(realTime_.elapsed()); });
}

void Session::RunGuarded(const std::function<void()>& work) {
  // A fault ends here: Qt, which called us, is not made for exceptions that pass through it.
  try {
    work();
  } catch (const std::exception& fault) {
    qWarning("Quintara: %s", fault.what());
    pacing_.TellFault(fault.what());
  }
  Settle();
}

void Session::Settle() {
  // A handler that waits for the user settles when it is done; until then nothing may tick.
  if (scene_.dispatcher().busy()) return;
  ShowChanges();
  if (const auto rest = pacing_.Rest(realTime_.elapsed())) {
    nextTick_.start(static_cast<int>(*rest));
  } else {
    nextTick_.stop();
  }
}

void Session::BeginWaiting() {
  nextTick_.stop();
  ShowChanges();
}

void Session::ShowChanges() {
  if (scene_.ended()) return;
  for (Form* form : std::exchange(toShow_, {})) {
    auto window = windows_.find(form);
    if (window == windows_.end()) {
      window = windows_.try_emplace(form, new FormWindow(*form, *this), &Retire).first;
      const auto footer = footers_.find(form);
      if (footer != footers_.end()) window->second->SetFooter(footer->second(*window->second));
    }
    window->second->Follow();
    window->second->BringToFront();
  }
  for (auto& [form, window] : windows_) window->Follow();
}

void Session::FormShown(Form& form) {
  std::erase(toShow_, &form);
  toShow_.push_back(&form);
}

void Session::FormUnloaded(Form& form) {
  std::erase(toShow_, &form);
  windows_.erase(&form);
}

void Session::ProgramEnded() {
  toShow_.clear();
  windows_.clear();
  nextTick_.stop();
  // Not quit(), which asks every window first. Where no event loop runs there is none to leave, and the next
  // one to begin would end at once.
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit();
}

void Session::SetZoom(const Zoom& zoom) {
  zoom_ = zoom;
  QToolTip::setFont(ToQFont(Font{}, zoom));
  ShowChanges();
}

void Session::Choose(const Settings& settings) {
  settings_ = settings;
  if (keepsSettings_) SaveSettings(scene_, settings_);
  if (whenChosen_) whenChosen_(settings_);
  SetZoom(Zoom(settings_.zoom.value_or(1)));
}

void Session::KeepSettings() {
  const ReadSettings read = LoadSettings(scene_);
  if (read.damaged) {
    scene_.TellFault(
        "Some of what you have chosen of the windows could not be read in the file settings.txt. What could "
        "be "
        "read is used; the file is put aside as settings.txt.damaged.");
  }
  keepsSettings_ = read.damaged;  // one that was read as it stands need not be written
  Choose(read.settings);
  keepsSettings_ = true;
}

void Session::SwitchFullScreen() {
  FormWindow* window = WindowOf(*scene_.forms().front());
  if (window == nullptr) return;
  if (window->isFullScreen()) {
    window->showNormal();
  } else {
    window->showFullScreen();
  }
}

bool Session::PointerMoved(const QPoint& screen) {
  return std::exchange(pointer_, screen) != screen;
}

FormWindow* Session::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow* Session::ActiveWindow() const {
  const auto isActive = [](const auto& entry) { return entry.second->isActiveWindow(); };
  const auto found = std::find_if(windows_.begin(), windows_.end(), isActive);
  return found == windows_.end() ? nullptr : found->second.get();
}

}  // namespace quintara::desktop
