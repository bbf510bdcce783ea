#pragma once

#include <deque>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
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
  std::deque<Answer> boxAnswers;
  std::deque<std::string> menuAnswers;
  FileSystem* disk = &realDisk_;

  std::string ProgramFolder() override { return folder_; }
  FileSystem& Disk() override { return *disk; }
  void PlaySound(const DataFile& sound) override { log.push_back("sound " + sound.name); }
  void Beep() override { log.push_back("beep"); }

  // Replies come inside the call, or wait here where `repliesLater` is set.
  bool repliesLater = false;
  std::deque<std::function<void()>> replies;

  void ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) override {
    log.push_back("box " + box.text);
    const Answer answer = TakeFrom(boxAnswers, Answer::Ok);
    Give([reply, answer] { reply(answer); });
  }

  void OpenPopupMenu(Form& form, Menu& menu, double, double, std::function<void(Menu*)> reply) override {
    log.push_back("popup " + std::string(menu.name()));
    Object* chosen = form.Find(TakeFrom(menuAnswers, std::string()));
    Give([reply, chosen] { reply(dynamic_cast<Menu*>(chosen)); });
  }

  // Gives the oldest reply that waits.
  void Reply() {
    const auto reply = replies.front();
    replies.pop_front();
    reply();
  }

  void PutOnClipboard(const std::string& text) override { log.push_back("clipboard " + text); }
  void FormShown(Form& form) override { log.push_back("show " + std::string(form.name())); }
  void FormUnloaded(Form& form) override { log.push_back("unload " + std::string(form.name())); }
  void ProgramEnded() override { log.push_back("end"); }
  void FaultFound(const std::string& what) override { throw std::runtime_error(what); }

 private:
  template <typename Reply>
  static Reply TakeFrom(std::deque<Reply>& answers, Reply whenEmpty) {
    if (answers.empty()) return whenEmpty;
    Reply answer = std::move(answers.front());
    answers.pop_front();
    return answer;
  }

  void Give(std::function<void()> reply) {
    if (repliesLater) {
      replies.push_back(std::move(reply));
    } else {
      reply();
    }
  }

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
