#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <string>

#include "desktop/overlay_file_system.h"
#include "desktop/program_folders.h"
#include "desktop/session_platform.h"
#include "desktop/sound_player.h"
#include "scene/platform.h"

namespace quintara::desktop {

// What the Scene asks of the world, done by Qt.
class DesktopPlatform final : public SessionPlatform<Platform> {
 public:
  explicit DesktopPlatform(const ProgramFolders& folders);
  explicit DesktopPlatform(const QString& programFolder)
      : DesktopPlatform(ProgramFolders{programFolder, programFolder}) {}

  // False: a sound server that does not answer still holds up the sounds.
  bool EndSounds() { return sounds_.End(); }

  std::string ProgramFolder() override { return programFolder_.toStdString(); }
  FileSystem& Disk() override { return disk_; }

  double ScreenWidth() override;
  double ScreenHeight() override;
  std::uint64_t Seed() override;

  void PlaySound(const DataFile& sound) override;
  void Beep() override;
  std::int32_t ShowMessageBox(const std::string& text, std::int32_t style, const std::string& title) override;
  Menu* RunPopupMenu(Form& form, Menu& menu, double x, double y) override;
  void PutOnClipboard(const std::string& text) override;

 private:
  QString programFolder_;
  OverlayFileSystem disk_;
  SoundPlayer sounds_;
};

}  // namespace quintara::desktop
