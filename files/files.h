#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "files/file_system.h"

namespace quintara {

// A file of the program's folder: its name as the program joined it, such as "Help\Rules.rtf", and where it
// lies.
struct DataFile {
  std::string name;
  std::filesystem::path path;
};

// The data files, as the program opens them. Their names are joined to the program's folder with a backslash
// on every system. No file of any length or content takes more than the memory told here; nothing throws.
class Files {
 public:
  // The most that is read of a document or of a list of lines.
  static constexpr std::size_t mostOfFile = std::size_t{64} << 20;
  // A record file larger than this is none of ours and is left alone.
  static constexpr std::size_t mostOfRecords = std::size_t{1} << 20;
  static constexpr std::size_t recordLength = 10;

  Files(FileSystem& disk, std::string folder) : disk_(disk), folder_(std::move(folder)) {}

  // Finds a file by the name that the program joined: folder, backslash, name below the folder.
  DataFile Locate(std::string_view joined) const;

  // Whether anything lies there, a file or not.
  bool Exists(std::string_view joined) const { return disk_.Look(Locate(joined).path).exists; }

  // The whole file; nothing where it is missing, unreadable or too long.
  std::optional<std::string> ReadWhole(std::string_view joined) const;

  // The lines of a text file. A line ends with CR LF, a lone CR or a lone LF; the last one may go without.
  std::optional<std::vector<std::string>> ReadLines(std::string_view joined) const;
  // Puts the lines in the file's place, each ended by CR LF. False: the old file is as it was.
  bool WriteLines(std::string_view joined, const std::vector<std::string>& lines) const;

  // Record n, from 1, as text of up to 10 characters; empty where the file ends before it. Nothing where the
  // file is missing or unreadable.
  std::optional<std::string> ReadRecord(std::string_view joined, std::size_t number) const;
  // Fills the text with blanks to 10 characters, or cuts it, and stores it as record n; the other records
  // stay, and missing ones before it become blank. False: the old file is as it was.
  bool WriteRecord(std::string_view joined, std::size_t number, std::string_view text) const;

  // Whether a bitmap lies there that can be shown.
  bool IsBitmap(std::string_view joined) const;

 private:
  bool ReplaceWhole(const std::filesystem::path& path, const std::string& bytes) const;
  void RemoveLeftovers(const std::filesystem::path& path) const;

  FileSystem& disk_;
  std::string folder_;
};

}  // namespace quintara
