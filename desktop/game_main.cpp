#include "desktop/game_main.h"

#include <QtCore/QDir>

#include <cstdio>
#include <cstdlib>

#include "desktop/application.h"
#include "desktop/desktop_platform.h"
#include "desktop/program_folders.h"
#include "desktop/session.h"
#include "desktop/strip.h"
#include "front/companion.h"
#include "program/program.h"

namespace quintara::desktop {
namespace {

QtMessageHandler messagesOfQt = nullptr;

// Qt would advise to install the program anew, and abort.
void EndWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) return messagesOfQt(type, context, text);
  constexpr int noDisplay = 1;
  std::fputs(
      "quintara: no window can be opened here: there is no display, or none that Qt can use. Without one,\n"
      "quintara --tour FOLDER plays by itself and leaves pictures, and quintara-host plays by commands.\n",
      stderr);
  std::_Exit(noDisplay);
}

void TellIfMissing(const QString& folder, Platform& platform) {
  if (QDir(folder).exists()) return;
  const QString text =
      "The folder \"%1\" is missing. The documents, the pictures of the radar and the sounds lie in it. "
      "The game goes on without them.";
  platform.ShowMessageBox({text.arg(QDir::toNativeSeparators(folder)).toStdString(), "Quintara"},
                          [](Answer) {});
}

}  // namespace

int RunGame(int argumentCount, char** arguments) {
  messagesOfQt = qInstallMessageHandler(&EndWithoutDisplay);
  Application application(argumentCount, arguments);
  qInstallMessageHandler(messagesOfQt);
  const ProgramFolders folders = FindFolders();
  DesktopPlatform platform(folders);
  TellIfMissing(folders.data, platform);

  Program program(platform);
  const Companion companion(program);
  int result = 0;
  {
    Session session(program.scene(), AssistanceTable(program));
    platform.Attach(&session);
    SeatStrip(session, program, companion);
    session.WhenChosen([&platform](const Settings& settings) { platform.SetVolume(settings.Loudness()); });
    session.KeepSettings();
    session.Run([&program] { program.Start(); });
    if (!program.scene().ended()) result = Application::exec();
    platform.Attach(nullptr);
  }
  // A sound server that does not answer would hold up the end of Qt's libraries for ever.
  if (!platform.EndSounds()) std::_Exit(result);
  return result;
}

}  // namespace quintara::desktop
