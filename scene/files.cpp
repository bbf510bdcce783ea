#include "scene/files.h"

#include <algorithm>

namespace quintara {
namespace {

std::filesystem::path PathOfText(std::string_view utf8) {
  return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

// A number of four bytes, the lowest first.
std::int64_t LittleEndian(std::string_view bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < 4; ++i)
    number |= std::uint32_t{static_cast<unsigned char>(bytes[at + i])} << (8 * i);
  return static_cast<std::int32_t>(number);
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
  const std::int64_t width = LittleEndian(*bytes, 18);
  const std::int64_t height = std::abs(LittleEndian(*bytes, 22));
  return width > 0 && width <= longestSide && height > 0 && height <= longestSide;
}

// Writes the bytes into a file beside the old one and then renames it over the old one, so that at any
// moment, full disk and power cut included, the old or the new content lies there whole.
bool Files::ReplaceWhole(const std::filesystem::path& path, const std::string& bytes) const {
  const FileSystem::Entry entry = disk_.Look(path);
  if (entry.exists && !(entry.isFile && entry.writable)) return false;
  constexpr int names = 10;
  const auto beside = [&](int i) {
    std::filesystem::path name = path;
    name += ".new" + std::to_string(i);
    return name;
  };
  // A name that is taken belongs to another copy of the program, or was left by one that was killed.
  int free = 0;
  while (free < names && disk_.Look(beside(free)).exists) ++free;
  if (free == names) {
    for (int i = 0; i < names; ++i) disk_.Remove(beside(i));
    free = 0;
  }
  if (disk_.Create(beside(free), bytes) && disk_.Replace(beside(free), path)) return true;
  disk_.Remove(beside(free));
  return false;
}

}  // namespace quintara
