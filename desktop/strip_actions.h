#pragma once

#include <QtCore/QObject>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>

#include <functional>
#include <vector>

#include "front/settings.h"

namespace quintara {
class Program;
}

namespace quintara::desktop {

class FormWindow;
class Session;
class ShotLog;

// What the strip's buttons, its menu and their keys do. The keys work in the whole window, also while the
// strip is hidden.
class StripActions final : public QObject {
 public:
  StripActions(FormWindow& window, Session& session, Program& program, ShotLog& log);

  // Takes over what is chosen by now.
  void Follow();
  // Opens the menu with its lower right corner there, or as near as the screen has room.
  void OpenMenuAt(const QPoint& corner);

  QAction trace{"Trace"}, mute{"Mute"}, smaller{"Smaller windows"}, larger{"Larger windows"},
      fullScreen{"Full screen"};
  QAction menu{"Menu"};

 private:
  void BindKeys();
  void FillMenu();
  void FillVolumeMenu();
  // Changes what is chosen.
  void Choose(const std::function<void(Settings&)>& change);
  void ForgetAll();
  void ShowAbout();

  FormWindow& window_;
  Session& session_;
  Program& program_;
  ShotLog& shotLog_;
  QAction log_{"Shots of this game..."}, hide_, forget_{"Forget all that is kept..."},
      about_{"About Quintara"};
  QMenu menu_, volumeMenu_{"Volume"};
  std::vector<QAction*> volumes_;
};

}  // namespace quintara::desktop
