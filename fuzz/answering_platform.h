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
  void ShowMessageBox(const MessageBox&, std::function<void(Answer)> reply) override {
    reply(static_cast<Answer>(boxAnswer));
  }
  void OpenPopupMenu(Form&, Menu& menu, double, double, std::function<void(Menu*)> reply) override {
    Menu* item = menuAnswer < menu.items().size() ? menu.items()[menuAnswer] : nullptr;
    reply(item != nullptr && item->CanBeChosen() ? item : nullptr);
  }
  void PutOnClipboard(const std::string& text) override { clipboard = text; }

 private:
  FileSystem& disk_;
};

}  // namespace quintara::fuzz
