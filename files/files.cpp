#include "files/files.h"

#include <algorithm>
#include <chrono>

#include <cstdlib>
#include "text/utf8.h"

#include "files/little_endian.h"

namespace quintara {
namespace {

std::filesystem::path PathOfText(std::string_view utf8) {
#ifdef _WIN32
  // Names have UTF-16 there, and a path made of what is no UTF-8 would throw.
  std::u32string characters;
  for (std::size_t position = 0; position < utf8.size();) characters += ReadUtf8(utf8, position);
  return std::filesystem::path(characters);
#else
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
#endif
}

constexpr int mostNames = 10'000;
// A name for what is written beside a file before it takes the file's place, from 0.
std::filesystem::path Beside(std::filesystem::path path, int number) {
  path += ".new" + std::to_string(number);
  return path;
}

}  // namespace

DataFile Files::Locate(std::string_view joined) const {
  std::string_view name = joined;
  if (name.starts_with(folder_)) name.remove_prefix(folder_.size());
  while (name.starts_with('\\')) name.remove_prefix(1);
  std::string native(name);
  std::replace(native.begin(), native.end(), '\\', '/');
  return {std::string(name), PathOfText(folder_) / PathOfText(native)};
}

std::optional<std::string> Files::ReadWhole(std::string_view joined) const {
  auto bytes = disk_.Read(Locate(joined).path, 0, mostOfFile + 1);
  if (bytes && bytes->size() > mostOfFile) return std::nullopt;
  return bytes;
}

std::optional<std::vector<std::string>> Files::ReadLines(std::string_view joined) const {
  const auto bytes = ReadWhole(joined);
  if (!bytes) return std::nullopt;
  std::vector<std::string> lines;
  const std::string_view text = *bytes;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
    lines.emplace_back(text.substr(at, end - at));
    at = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
  }
  return lines;
}

bool Files::WriteLines(std::string_view joined, const std::vector<std::string>& lines) const {
  std::string bytes;
  for (const std::string& line : lines) bytes += line + "\r\n";
  return ReplaceWhole(Locate(joined).path, bytes);
}

std::optional<std::string> Files::ReadRecord(std::string_view joined, std::size_t number) const {
  return disk_.Read(Locate(joined).path, recordLength * (number - 1), recordLength);
}

bool Files::WriteRecord(std::string_view joined, std::size_t number, std::string_view text) const {
  const std::filesystem::path path = Locate(joined).path;
  std::string bytes;
  const FileSystem::Entry entry = disk_.Look(path);
  if (entry.exists) {
    const auto old = disk_.Read(path, 0, mostOfRecords + 1);
    if (!old || old->size() > mostOfRecords) return false;
    bytes = *old;
  }
  const std::string before = bytes;
  bytes.resize(std::max(bytes.size(), recordLength * number), ' ');
  std::string record(text.substr(0, recordLength));
  record.resize(recordLength, ' ');
  bytes.replace(recordLength * (number - 1), recordLength, record);
  return (entry.exists && bytes == before) || ReplaceWhole(path, bytes);
}

bool Files::IsBitmap(std::string_view joined) const {
  constexpr std::size_t header = 30;
  constexpr std::int64_t longestSide = 4096;
  const auto bytes = disk_.Read(Locate(joined).path, 0, header);
  if (!bytes || bytes->size() < header || !bytes->starts_with("BM")) return false;
  const auto side = [&](std::size_t at) -> std::int64_t {
    return static_cast<std::int32_t>(LittleEndian(*bytes, at, 4));
  };
  const std::int64_t width = side(18);
  const std::int64_t height = std::abs(side(22));
  return width > 0 && width <= longestSide && height > 0 && height <= longestSide;
}

// Writes the bytes into a file beside the old one and then renames it over the old one, so that at any
// moment, on a full disk and where the program is killed, the old or the new content lies there whole.
bool Files::ReplaceWhole(const std::filesystem::path& path, const std::string& bytes) const {
  const FileSystem::Entry entry = disk_.Look(path);
  if (entry.exists && !(entry.isFile && entry.writable)) return false;
  // Where it fails, another copy of the program may have taken the name this very moment.
  int tries = 3;
  for (int i = 0; i < mostNames && tries > 0; ++i) {
    // A name that is taken belongs to another copy, or was left by one that was killed.
    const std::filesystem::path fresh = Beside(path, i);
    if (disk_.Look(fresh).exists) continue;
    --tries;
    if (!disk_.Create(fresh, bytes)) continue;
    if (!disk_.Replace(fresh, path)) {
      disk_.Remove(fresh);
      return false;
    }
    RemoveLeftovers(path);
    return true;
  }
  return false;
}

// Removes what killed copies left beside a file that has just been saved. What is young may belong to a copy
// that is saving now: robbed of its name, it might put in place what a third copy has half written there.
void Files::RemoveLeftovers(const std::filesystem::path& path) const {
  constexpr std::chrono::minutes longestSave(1);
  constexpr int widestGap = 10;
  const FileSystem::Entry saved = disk_.Look(path);
  if (!saved.isFile) return;
  std::vector<std::filesystem::path> leftovers;
  for (int i = 0, gap = 0; i < mostNames && gap < widestGap; ++i) {
    const FileSystem::Entry entry = disk_.Look(Beside(path, i));
    gap = entry.exists ? 0 : gap + 1;
    if (!entry.isFile) continue;
    // All or none, and the last one first, so that no gap hides those behind it.
    if (entry.written >= saved.written - longestSave) return;
    leftovers.push_back(Beside(path, i));
  }
  for (auto leftover = leftovers.rbegin(); leftover != leftovers.rend(); ++leftover) disk_.Remove(*leftover);
}

}  // namespace quintara
