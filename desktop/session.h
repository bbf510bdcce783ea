#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QPoint>
#include <QtCore/QTimer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "desktop/pictures.h"
#include "desktop/press_watch.h"
#include "front/assistance.h"
#include "front/pacing.h"
#include "front/settings.h"
#include "front/windows.h"
#include "front/zoom.h"

namespace quintara {
class Form;
class Object;
class Scene;
}  // namespace quintara

namespace quintara::desktop {

class Footer;
class FormWindow;

// A running program on the screen: a window for each of its forms, and the real time that drives its timers.
// While nothing happens it sleeps until the next tick is due.
class Session final : public Windows {
 public:
  // The scene must outlive the session.
  explicit Session(Scene& scene, AssistanceTable assistance = {});
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Hands the user's input to the Scene and shows what came of it. All input goes through here. A fault in a
  // handler is told to the user, and the program goes on.
  void Run(const std::function<void()>& input);

  // The user has pressed a control, with the mouse or a key. A press that was not meant is dropped.
  void Click(Object& control);

  // Shows the Scene as it stands in the middle of a handler that is about to wait for the user.
  void BeginWaiting();
  // The handler goes on: no timer ticked in the time that it waited.
  void EndWaiting() { pacing_.CatchUp(realTime_.elapsed()); }

  void FormShown(Form& form) override;
  void FormUnloaded(Form& form) override;
  void ProgramEnded() override;

  // Whether the pointer has come to another place since the last call. Windows also report a move when
  // something appears or vanishes below a pointer at rest.
  bool PointerMoved(const QPoint& screen);

  // What the window of a form shows below it, made with the window and as its child.
  using MakeFooter = std::function<Footer*(FormWindow&)>;
  void SetFooter(const Form& form, MakeFooter make) { footers_[&form] = std::move(make); }

  // How large windows are to be. Their places are on a desk that grows with them, so that they keep standing
  // beside each other.
  const Zoom& zoom() const { return zoom_; }
  void SetZoom(const Zoom& zoom);

  // What the player has chosen of the windows. Without KeepSettings it is as at a first start.
  const Settings& settings() const { return settings_; }
  // Takes a choice over, shows what came of it, and keeps it for the next start where KeepSettings was
  // called.
  void Choose(const Settings& settings);
  // Begins with what was chosen at an earlier start and keeps what is chosen from now on. Damage is told.
  void KeepSettings();
  // Is told each time.
  void WhenChosen(std::function<void(const Settings&)> listener) { whenChosen_ = std::move(listener); }
  // Lets the main window fill its screen, or gives it its own size again.
  void SwitchFullScreen();

  // Null where the form has no window.
  FormWindow* WindowOf(const Form& form) const;
  // The window that the user works in; null where it is none of a form's. Qt may name one that was closed a
  // moment ago and is about to go.
  FormWindow* ActiveWindow() const;
  Scene& scene() const { return scene_; }
  const AssistanceTable& assistance() const { return assistance_; }
  Pictures& pictures() { return pictures_; }

 private:
  void Tick();
  void RunGuarded(const std::function<void()>& work);
  void Settle();
  void ShowChanges();

  Scene& scene_;
  AssistanceTable assistance_;
  Settings settings_;
  bool keepsSettings_ = false;
  std::function<void(const Settings&)> whenChosen_;
  Zoom zoom_;
  Pictures pictures_;
  PressWatch presses_{assistance_};
  QElapsedTimer realTime_;
  Pacing pacing_;
  QTimer nextTick_;
  std::map<const Form*, std::unique_ptr<FormWindow, void (*)(FormWindow*)>> windows_;
  std::map<const Form*, MakeFooter> footers_;
  std::vector<Form*> toShow_;
  std::optional<QPoint> pointer_;
};

}  // namespace quintara::desktop
