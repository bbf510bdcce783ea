#include "host/host_main.h"

#include <filesystem>
#include <iostream>

#include "host/command_loop.h"
#include "program/program.h"

namespace quintara::host {
namespace {

namespace fs = std::filesystem;

fs::path DataFolderBeside(const fs::path& executable) {
  // Where the system tells it, the true place is better: the executable may have been found by a bare name.
  std::error_code error;
  const fs::path self = fs::read_symlink("/proc/self/exe", error);
  return (error ? executable : self).parent_path() / "data";
}

}  // namespace

int RunHost(const std::vector<fs::path>& arguments) {
  constexpr int wrongCall = 2;
  if (arguments.size() > 2) {
    std::cerr << "usage: quintara-host [DATA_FOLDER]\n";
    return wrongCall;
  }
  // A caller may leave out even the name of the executable.
  const fs::path folder =
      arguments.size() == 2 ? arguments[1] : DataFolderBeside(arguments.empty() ? fs::path() : arguments[0]);
  std::error_code error;
  if (!fs::is_directory(folder, error)) {
    const std::u8string name = folder.u8string();
    std::cerr << "quintara-host: there is no folder " << std::string(name.begin(), name.end()) << '\n';
    return wrongCall;
  }
  std::ios::sync_with_stdio(false);
  HostPlatform platform(folder, std::cout);
  Program program(platform);
  CommandLoop loop(program.scene(), platform, std::cout, [&program] { program.Start(); });
  loop.Run(std::cin);
  return 0;
}

}  // namespace quintara::host
