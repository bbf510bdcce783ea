#pragma once

#include <string>

#include "fuzz/shipped_files.h"
#include "scene/menu.h"
#include "scene/quiet_platform.h"

namespace quintara::fuzz {

// A quiet world whose answers are set as made-up input wants them.
class AnsweringPlatform : public QuietPlatform {
 public:
  explicit AnsweringPlatform(FileSystem& disk) : disk_(disk) {}

  std::int32_t boxAnswer = 1;
  std::size_t menuAnswer = 0;  // which item of a menu is chosen; dismissed where none can be
  std::string clipboard;

  std::string ProgramFolder() override { return programFolder; }
  FileSystem& Disk() override { return disk_; }
  std::int32_t ShowMessageBox(const std::string&, std::int32_t, const std::string&) override {
    return boxAnswer;
  }
  Menu* RunPopupMenu(Form&, Menu& menu, double, double) override {
    Menu* item = menuAnswer < menu.items().size() ? menu.items()[menuAnswer] : nullptr;
    return item != nullptr && item->CanBeChosen() ? item : nullptr;
  }
  void PutOnClipboard(const std::string& text) override { clipboard = text; }

 private:
  FileSystem& disk_;
};

}  // namespace quintara::fuzz
