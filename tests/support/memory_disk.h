#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "files/file_system.h"

namespace quintara {

// Files by their path, slashes on every system.
using FileContents = std::map<std::string, std::string>;

// Files in memory, above those that are there from the start and are only read. It fills up when told to.
class MemoryDisk : public FileSystem {
 public:
  MemoryDisk() = default;
  // `below` must outlive the disk.
  explicit MemoryDisk(const FileContents& below) : below_(&below) {}

  FileContents written;
  bool full = false;

  Entry Look(const std::filesystem::path& path) override {
    const std::string* bytes = Find(path);
    return bytes != nullptr ? Entry{.exists = true, .isFile = true, .writable = true} : Entry{};
  }

  std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                  std::size_t most) override {
    const std::string* bytes = Find(path);
    if (bytes == nullptr) return std::nullopt;
    return offset < bytes->size() ? bytes->substr(static_cast<std::size_t>(offset), most) : std::string();
  }

  bool Create(const std::filesystem::path& path, const std::string& bytes) override {
    return !full && Find(path) == nullptr && written.emplace(path.generic_string(), bytes).second;
  }

  bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) override {
    auto moved = written.extract(fresh.generic_string());
    if (moved.empty()) return false;
    written[old.generic_string()] = std::move(moved.mapped());
    return true;
  }

  void Remove(const std::filesystem::path& path) override { written.erase(path.generic_string()); }

 private:
  const std::string* Find(const std::filesystem::path& path) const {
    const std::string name = path.generic_string();
    if (const auto found = written.find(name); found != written.end()) return &found->second;
    const auto found = below_ != nullptr ? below_->find(name) : FileContents::const_iterator();
    return below_ != nullptr && found != below_->end() ? &found->second : nullptr;
  }

  const FileContents* below_ = nullptr;
};

}  // namespace quintara
