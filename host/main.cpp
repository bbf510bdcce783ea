#include <filesystem>
#include <iostream>

#include "host/session.h"
#include "program/program.h"

namespace {

namespace fs = std::filesystem;

fs::path DataFolderBeside(const char* executable) {
  // Where the system tells it, the true place is better: the executable may have been found by a bare name.
  std::error_code error;
  const fs::path self = fs::read_symlink("/proc/self/exe", error);
  return (error ? fs::path(executable) : self).parent_path() / "data";
}

}  // namespace

int main(int argc, char** argv) {
  constexpr int wrongCall = 2;
  if (argc > 2) {
    std::cerr << "usage: quintara-host [DATA_FOLDER]\n";
    return wrongCall;
  }
  const fs::path folder = argc == 2 ? fs::path(argv[1]) : DataFolderBeside(argc == 1 ? argv[0] : "");
  std::error_code error;
  if (!fs::is_directory(folder, error)) {
    std::cerr << "quintara-host: there is no folder " << folder.string() << '\n';
    return wrongCall;
  }
  std::ios::sync_with_stdio(false);
  quintara::host::HostPlatform platform(folder, std::cout);
  quintara::Program program(platform);
  quintara::host::Session session(program.scene(), platform, std::cout, [&program] { program.Start(); });
  session.Run(std::cin);
  return 0;
}
