#pragma once

#include <algorithm>
#include <string>

#include "scene/form.h"
#include "scene/platform.h"

namespace quintara {

// A world outside in which nothing is heard or seen and no file is kept, so that only the program's work is
// timed.
class SilentPlatform : public Platform {
 public:
  std::string ProgramFolder() override { return "/quintara"; }
  FileSystem& Disk() override { return disk_; }
  double ScreenWidth() override { return 28800; }
  double ScreenHeight() override { return 16200; }
  std::uint64_t Seed() override { return ++seed_; }
  void PlaySound(const DataFile&) override {}
  void Beep() override {}
  std::int32_t ShowMessageBox(const std::string&, std::int32_t, const std::string&) override { return 1; }
  Menu* RunPopupMenu(Form&, Menu&, double, double) override { return nullptr; }
  void PutOnClipboard(const std::string&) override {}
  void FormShown(Form&) override {}
  void FormUnloaded(Form&) override {}
  void ProgramEnded() override {}

 private:
  // Keeps one record in memory, and shows a bitmap wherever one is asked for.
  class MemoryDisk : public FileSystem {
    Entry Look(const std::filesystem::path&) override { return {}; }
    std::optional<std::string> Read(const std::filesystem::path&, std::uint64_t offset,
                                    std::size_t most) override {
      if (offset != 0) return "15        ";
      std::string header(64, '\0');
      header.replace(0, 2, "BM");
      header[18] = 49;
      header[22] = 37;
      header.resize(std::min<std::size_t>(most, header.size()));
      return header;
    }
    bool Create(const std::filesystem::path&, const std::string&) override { return true; }
    bool Replace(const std::filesystem::path&, const std::filesystem::path&) override { return true; }
    void Remove(const std::filesystem::path&) override {}
  };

  MemoryDisk disk_;
  std::uint64_t seed_ = 0;
};

}  // namespace quintara
