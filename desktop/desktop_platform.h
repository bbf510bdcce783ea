#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <string>

#include "desktop/program_folders.h"
#include "desktop/session.h"
#include "desktop/sound_player.h"
#include "front/players_files.h"
#include "front/windows.h"
#include "scene/platform.h"

namespace quintara::desktop {

// What the Scene asks of the world, done by Qt.
class DesktopPlatform final : public WindowsPlatform<Platform, Session> {
 public:
  explicit DesktopPlatform(const ProgramFolders& folders);
  explicit DesktopPlatform(const QString& programFolder)
      : DesktopPlatform(ProgramFolders{programFolder, programFolder}) {}

  // False: a sound server that does not answer still holds up the sounds.
  bool EndSounds() { return sounds_.End(); }
  // How loud sounds are from now on, in percent; at 0 there is no beep either.
  void SetVolume(int percent);

  std::string ProgramFolder() override { return programFolder_.toStdString(); }
  FileSystem& Disk() override { return disk_; }

  double ScreenWidth() override;
  double ScreenHeight() override;
  std::uint64_t Seed() override;

  void PlaySound(const DataFile& sound) override;
  void Beep() override;
  void ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) override;
  void OpenPopupMenu(Form& form, Menu& menu, double x, double y, std::function<void(Menu*)> reply) override;
  void PutOnClipboard(const std::string& text) override;
  void FaultFound(const std::string& what) override;

 private:
  Answer RunMessageBox(const MessageBox& question);
  Menu* RunPopupMenu(Form& form, Menu& menu, double x, double y);

  QString programFolder_;
  std::string howToUninstall_;
  PlayersFiles disk_;
  bool isSilent_ = false;
  SoundPlayer sounds_;
};

}  // namespace quintara::desktop
