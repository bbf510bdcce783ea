#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "files/file_system.h"
#include "front/windows.h"
#include "scene/quiet_platform.h"

namespace quintara {

// The files of this machine, of which none is ever changed: what the program writes is kept in memory and
// read from there. What it writes in a player's game is not read from the disk either.
class TourDisk final : public FileSystem {
 public:
  Entry Look(const std::filesystem::path& path) override;
  std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                  std::size_t most) override;
  bool Create(const std::filesystem::path& path, const std::string& bytes) override;
  bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) override;
  void Remove(const std::filesystem::path& path) override { written_.erase(path); }

 private:
  DiskFileSystem machine_;
  std::map<std::filesystem::path, std::string> written_;
};

// A world for a game that plays by itself: the windows are real, but nothing waits for a user, nothing
// sounds, and no two runs differ.
class TourPlatform final : public WindowsPlatform<QuietPlatform> {
 public:
  explicit TourPlatform(std::string programFolder) : programFolder_(std::move(programFolder)) {}

  // What the next popup menu answers.
  void Choose(Menu& item) { chosen_ = &item; }
  // What a message box said; empty while there was none.
  const std::string& boxText() const { return boxText_; }

  std::string ProgramFolder() override { return programFolder_; }
  FileSystem& Disk() override { return disk_; }
  void ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) override;
  void OpenPopupMenu(Form& form, Menu& menu, double x, double y, std::function<void(Menu*)> reply) override;

 private:
  std::string programFolder_;
  TourDisk disk_;
  Menu* chosen_ = nullptr;
  std::string boxText_;
};

}  // namespace quintara
