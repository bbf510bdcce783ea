#include "scene/file_system.h"

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
  entry.exists = fs::exists(status);
  entry.isFile = fs::is_regular_file(status);
  constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  entry.writable = (status.permissions() & anyWrite) != fs::perms::none;
  if (entry.isFile) {
    const std::uintmax_t size = fs::file_size(path, error);
    entry.size = error ? 0 : size;
  }
  return entry;
}

std::optional<std::string> DiskFileSystem::Read(const fs::path& path, std::uint64_t offset,
                                                std::size_t most) {
  // Opening a pipe or a device could wait for ever.
  const Entry entry = Look(path);
  if (!entry.isFile) return std::nullopt;
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  const std::uint64_t left = entry.size > offset ? entry.size - offset : 0;
  std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(most, left)), '\0');
  file.seekg(static_cast<std::streamoff>(std::min(offset, entry.size)));
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (file.bad()) return std::nullopt;
  bytes.resize(static_cast<std::size_t>(file.gcount()));
  return bytes;
}

bool DiskFileSystem::Create(const fs::path& path, const std::string& bytes) {
  File file = OpenNew(path);
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
  const bool flushed = std::fflush(file.get()) == 0;
  // A full disk may show only here.
  const bool closed = std::fclose(file.release()) == 0;
  return written && flushed && closed;
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
