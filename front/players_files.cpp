#include "front/players_files.h"

#include <system_error>

#include "files/files.h"

namespace quintara {

namespace fs = std::filesystem;

void PlayersFiles::MakeOwnList() {
  if (disk_.Look(Own(programFolder_ / "Masters.txt")).exists) return;
  const std::u8string folder = programFolder_.u8string();
  const Files files(*this, std::string(folder.begin(), folder.end()));
  if (const auto shipped = files.ReadLines("Masters.txt")) files.WriteLines("Masters.txt", *shipped);
}

fs::path PlayersFiles::Own(const fs::path& path) const {
  if (path.parent_path() != programFolder_) return path;
  const fs::path file = path.filename();
  // "Masters.txt.new0" belongs to Masters.txt: a rename is one step only within one folder.
  for (const fs::path name : {"Masters.txt", "extra.txt", "settings.txt"}) {
    if (file.native().starts_with(name.native())) return ownFolder_ / file;
  }
  return path;
}

FileSystem::Entry PlayersFiles::Look(const fs::path& path) {
  const fs::path own = Own(path);
  Entry entry = disk_.Look(own);
  if (entry.exists || own == path) return entry;
  entry = disk_.Look(path);
  // That it can't be written here is no hindrance: the player's own will be.
  entry.writable = entry.exists;
  return entry;
}

std::optional<std::string> PlayersFiles::Read(const fs::path& path, std::uint64_t offset, std::size_t most) {
  const fs::path own = Own(path);
  return disk_.Read(disk_.Look(own).exists ? own : path, offset, most);
}

bool PlayersFiles::Create(const fs::path& path, const std::string& bytes) {
  const fs::path own = Own(path);
  std::error_code shownByWhatFollows;
  if (own != path) fs::create_directories(ownFolder_, shownByWhatFollows);
  return disk_.Create(own, bytes);
}

bool PlayersFiles::Replace(const fs::path& fresh, const fs::path& old) {
  return disk_.Replace(Own(fresh), Own(old));
}

void PlayersFiles::Remove(const fs::path& path) {
  disk_.Remove(Own(path));
}

}  // namespace quintara
