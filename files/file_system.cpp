#include "files/file_system.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <memory>
#include <system_error>

namespace quintara {
namespace {

namespace fs = std::filesystem;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Fails where the file exists: two copies of the program never write into the same one.
File OpenNew(const fs::path& path) {
#ifdef _WIN32
  return File(_wfopen(path.c_str(), L"wbx"));
#else
  return File(std::fopen(path.c_str(), "wbx"));
#endif
}

}  // namespace

FileSystem::Entry DiskFileSystem::Look(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  Entry entry;
  // What the disk fails to tell of may be a file that must not be lost.
  entry.exists = status.type() != fs::file_type::not_found;
  entry.isFile = fs::is_regular_file(status);
  constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  entry.writable = (status.permissions() & anyWrite) != fs::perms::none;
  if (entry.isFile) entry.written = fs::last_write_time(path, error);
  if (error) entry.isFile = false;
  return entry;
}

std::optional<std::string> DiskFileSystem::Read(const fs::path& path, std::uint64_t offset,
                                                std::size_t most) {
  // Opening a pipe or a device could wait for ever.
  if (!Look(path).isFile) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file.seekg(static_cast<std::streamoff>(offset))) return std::nullopt;
  // To its end, not for the length that it had a moment ago: another copy of the program may have replaced
  // it.
  constexpr std::size_t piece = std::size_t{1} << 16;
  std::string bytes;
  while (file && bytes.size() < most) {
    const std::size_t before = bytes.size();
    bytes.resize(before + std::min(piece, most - before));
    file.read(bytes.data() + before, static_cast<std::streamsize>(bytes.size() - before));
    bytes.resize(before + static_cast<std::size_t>(file.gcount()));
  }
  if (file.bad()) return std::nullopt;
  return bytes;
}

bool DiskFileSystem::Create(const fs::path& path, const std::string& bytes) {
  File file = OpenNew(path);
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  const bool flushed = std::fflush(file.get()) == 0;
  // A full disk may show only here.
  const bool closed = std::fclose(file.release()) == 0;
  if (written && flushed && closed) return true;
  Remove(path);
  return false;
}

bool DiskFileSystem::Replace(const fs::path& fresh, const fs::path& old) {
  std::error_code error;
  const fs::file_status status = fs::status(old, error);
  if (fs::exists(status)) fs::permissions(fresh, status.permissions(), error);
  fs::rename(fresh, old, error);
  return !error;
}

void DiskFileSystem::Remove(const fs::path& path) {
  std::error_code error;
  fs::remove(path, error);
}

}  // namespace quintara
