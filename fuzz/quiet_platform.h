#pragma once

#include <string>

#include "fuzz/shipped_files.h"
#include "scene/form.h"
#include "scene/menu.h"
#include "scene/platform.h"

namespace quintara::fuzz {

// A world outside without sound, windows and clock, so that a run depends on its input alone. What the
// program asks is answered as set here.
class QuietPlatform : public Platform {
 public:
  explicit QuietPlatform(FileSystem& disk) : disk_(disk) {}

  std::int32_t boxAnswer = 1;
  std::size_t menuAnswer = 0;  // which item of a menu is chosen; beyond the last one it is dismissed
  std::string clipboard;

  std::string ProgramFolder() override { return programFolder; }
  FileSystem& Disk() override { return disk_; }
  double ScreenWidth() override { return 28800; }
  double ScreenHeight() override { return 16200; }
  std::uint64_t Seed() override { return ++seed_; }
  void PlaySound(const DataFile&) override {}
  void Beep() override {}
  std::int32_t ShowMessageBox(const std::string&, std::int32_t, const std::string&) override {
    return boxAnswer;
  }
  Menu* RunPopupMenu(Form&, Menu& menu, double, double) override {
    return menuAnswer < menu.items().size() ? menu.items()[menuAnswer] : nullptr;
  }
  void PutOnClipboard(const std::string& text) override { clipboard = text; }
  void FormShown(Form&) override {}
  void FormUnloaded(Form&) override {}
  void ProgramEnded() override {}

 private:
  FileSystem& disk_;
  std::uint64_t seed_ = 0;
};

}  // namespace quintara::fuzz
