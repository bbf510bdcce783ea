#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "files/file_system.h"

namespace quintara {

// Which of the operations that follow fail: those from `first` to `last`, counted from 1.
struct Faults {
  static constexpr int none = 0, evermore = 1'000'000'000;

  int first = none;
  int last = none;
  int made = 0;

  bool NextFails() {
    ++made;
    return made >= first && made <= last;
  }
  int failed() const { return first == none ? 0 : std::max(std::min(made, last) - first + 1, 0); }
};

// The files of this machine, on a disk of which chosen operations fail.
class FailingDisk : public DiskFileSystem {
 public:
  Faults faults;

  Entry Look(const std::filesystem::path& path) override {
    return faults.NextFails() ? Entry{.exists = true} : DiskFileSystem::Look(path);
  }
  std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                  std::size_t most) override {
    return faults.NextFails() ? std::nullopt : DiskFileSystem::Read(path, offset, most);
  }
  bool Create(const std::filesystem::path& path, const std::string& bytes) override {
    return !faults.NextFails() && DiskFileSystem::Create(path, bytes);
  }
  bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) override {
    return !faults.NextFails() && DiskFileSystem::Replace(fresh, old);
  }
  void Remove(const std::filesystem::path& path) override {
    if (!faults.NextFails()) DiskFileSystem::Remove(path);
  }
};

}  // namespace quintara
