#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace quintara {

// The few things that the program does with files. Nothing here throws; what fails says so by its result.
class FileSystem {
 public:
  struct Entry {
    bool exists = false;                        // also where the disk doesn't tell
    bool isFile = false;                        // a plain file, neither a folder nor a device
    bool writable = false;                      // no one has write-protected it
    std::filesystem::file_time_type written{};  // when a file was last written, by the disk's own clock
  };

  virtual ~FileSystem() = default;

  virtual Entry Look(const std::filesystem::path& path) = 0;
  // Up to `most` bytes from `offset` on, fewer at the end of the file; nothing where it can't be read.
  virtual std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                          std::size_t most) = 0;
  // Creates a file that must not exist yet. False where any step up to the closing failed; of what was
  // written nothing is left, as far as it can be removed.
  virtual bool Create(const std::filesystem::path& path, const std::string& bytes) = 0;
  // Puts one file in the place of another in one step.
  virtual bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) = 0;
  virtual void Remove(const std::filesystem::path& path) = 0;
};

// The files of this machine.
class DiskFileSystem : public FileSystem {
 public:
  Entry Look(const std::filesystem::path& path) override;
  std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                  std::size_t most) override;
  bool Create(const std::filesystem::path& path, const std::string& bytes) override;
  bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) override;
  void Remove(const std::filesystem::path& path) override;
};

}  // namespace quintara
