#include "front/tour_platform.h"

#include <utility>

namespace quintara {
namespace {

bool IsWrittenInAGame(const std::filesystem::path& path) {
  return path.filename() == "Masters.txt" || path.filename() == "extra.txt";
}

}  // namespace

FileSystem::Entry TourDisk::Look(const std::filesystem::path& path) {
  if (written_.contains(path)) return {.exists = true, .isFile = true, .writable = true};
  return IsWrittenInAGame(path) ? Entry{} : machine_.Look(path);
}

std::optional<std::string> TourDisk::Read(const std::filesystem::path& path, std::uint64_t offset,
                                          std::size_t most) {
  const auto found = written_.find(path);
  if (found == written_.end())
    return IsWrittenInAGame(path) ? std::nullopt : machine_.Read(path, offset, most);
  const std::string& bytes = found->second;
  return offset < bytes.size() ? bytes.substr(static_cast<std::size_t>(offset), most) : std::string();
}

bool TourDisk::Create(const std::filesystem::path& path, const std::string& bytes) {
  return written_.emplace(path, bytes).second;
}

bool TourDisk::Replace(const std::filesystem::path& fresh, const std::filesystem::path& old) {
  auto moved = written_.extract(fresh);
  if (moved.empty()) return false;
  written_[old] = std::move(moved.mapped());
  return true;
}

void TourPlatform::ShowMessageBox(const MessageBox& box, std::function<void(Answer)> reply) {
  boxText_ = box.text;
  reply(Answer::Ok);
}

void TourPlatform::OpenPopupMenu(Form&, Menu&, double, double, std::function<void(Menu*)> reply) {
  reply(std::exchange(chosen_, nullptr));
}

}  // namespace quintara
