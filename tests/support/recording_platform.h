#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "scene/form.h"
#include "scene/menu.h"
#include "scene/quiet_platform.h"

namespace quintara {

// A world outside that records what the program does to it, and answers from queues.
class RecordingPlatform : public QuietPlatform {
 public:
  explicit RecordingPlatform(std::string folder = "/nowhere") : folder_(std::move(folder)) {}

  std::vector<std::string> log;
  std::deque<std::int32_t> boxAnswers;
  std::deque<std::string> menuAnswers;
  FileSystem* disk = &realDisk_;

  std::string ProgramFolder() override { return folder_; }
  FileSystem& Disk() override { return *disk; }
  void PlaySound(const DataFile& sound) override { log.push_back("sound " + sound.name); }
  void Beep() override { log.push_back("beep"); }

  std::int32_t ShowMessageBox(const std::string& text, std::int32_t, const std::string&) override {
    log.push_back("box " + text);
    if (boxAnswers.empty()) return 1;
    const std::int32_t answer = boxAnswers.front();
    boxAnswers.pop_front();
    return answer;
  }

  Menu* RunPopupMenu(Form& form, Menu& menu, double, double) override {
    log.push_back("popup " + std::string(menu.name()));
    if (menuAnswers.empty()) return nullptr;
    const std::string answer = menuAnswers.front();
    menuAnswers.pop_front();
    return dynamic_cast<Menu*>(form.Find(answer));
  }

  void PutOnClipboard(const std::string& text) override { log.push_back("clipboard " + text); }
  void FormShown(Form& form) override { log.push_back("show " + std::string(form.name())); }
  void FormUnloaded(Form& form) override { log.push_back("unload " + std::string(form.name())); }
  void ProgramEnded() override { log.push_back("end"); }

 private:
  DiskFileSystem realDisk_;
  std::string folder_;
};

inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}
inline void Put(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// A folder of its own for a test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    // Tests run side by side, and a number that is taken may be given back this very moment.
    const std::string stem = (std::filesystem::temp_directory_path() / "quintara-test-").string();
    do {
      path_ = stem + std::to_string(std::random_device{}());
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }
  std::string text() const { return path_.string(); }
  std::string Bytes(const std::string& name) const { return BytesOf(path_ / name); }
  void Put(const std::string& name, const std::string& bytes) const { quintara::Put(path_ / name, bytes); }

 private:
  std::filesystem::path path_;
};

}  // namespace quintara
