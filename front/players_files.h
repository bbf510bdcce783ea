#pragma once

#include <filesystem>

#include "files/file_system.h"

namespace quintara {

// The files of this machine, but those that are written, the list of masters, extra.txt and the settings, lie
// in a folder of the player's own, together with what is written beside them while they are saved. Until the
// player has one, the file of the program's folder shows through; it is read and never written. With both
// folders the same, nothing is mapped.
class PlayersFiles final : public FileSystem {
 public:
  PlayersFiles(std::filesystem::path programFolder, std::filesystem::path ownFolder)
      : programFolder_(std::move(programFolder)), ownFolder_(std::move(ownFolder)) {}

  // At the first start, makes the player's list of masters from that of the program's folder. Where it can't,
  // the next save will try again and tell.
  void MakeOwnList();

  Entry Look(const std::filesystem::path& path) override;
  std::optional<std::string> Read(const std::filesystem::path& path, std::uint64_t offset,
                                  std::size_t most) override;
  bool Create(const std::filesystem::path& path, const std::string& bytes) override;
  bool Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) override;
  void Remove(const std::filesystem::path& path) override;

 private:
  // Where a file of that name is written.
  std::filesystem::path Own(const std::filesystem::path& path) const;

  DiskFileSystem disk_;
  std::filesystem::path programFolder_;
  std::filesystem::path ownFolder_;
};

}  // namespace quintara
