#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <iosfwd>
#include <string>

#include "scene/platform.h"
#include "scene/scale.h"

namespace quintara::host {

// The world outside of a program that runs without a display: what the program does to it is printed, and
// what it asks is answered from queues.
class HostPlatform : public Platform {
 public:
  // `folder` is the program's folder; `out` must outlive the platform.
  HostPlatform(const std::filesystem::path& folder, std::ostream& out);

  // The number that answers the next message box that has no answer yet.
  void QueueBoxAnswer(std::int32_t result) { boxAnswers_.push_back(result); }
  // The name of the item that is chosen in the next popup menu that has no answer yet. A menu in which the
  // user couldn't choose it is dismissed.
  void QueueMenuAnswer(const std::string& item) { menuAnswers_.push_back(item); }

  std::string ProgramFolder() override { return folder_; }
  FileSystem& Disk() override { return disk_; }
  double ScreenWidth() override { return 1920 * twipsPerPixel; }
  double ScreenHeight() override { return 1080 * twipsPerPixel; }
  std::uint64_t Seed() override;
  void PlaySound(const DataFile& sound) override;
  void Beep() override;
  void ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) override;
  void OpenPopupMenu(Form& form, Menu& menu, double x, double y, std::function<void(Menu*)> reply) override;
  void PutOnClipboard(const std::string& text) override;
  void FormShown(Form& form) override;
  void FormUnloaded(Form& form) override;
  void ProgramEnded() override;
  void FaultFound(const std::string& what) override;

 private:
  std::ostream& out_;
  std::string folder_;
  DiskFileSystem disk_;
  std::deque<std::int32_t> boxAnswers_;
  std::deque<std::string> menuAnswers_;
  std::uint64_t seeds_ = 0;
};

}  // namespace quintara::host
