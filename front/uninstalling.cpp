#include "front/uninstalling.h"

namespace quintara {

bool IsNoteOnUninstalling(const MessageBox& box) {
  return box.title == "Uninstall Quintara";
}

std::string HowToUninstall(const std::string& programFolder, const std::string& playersFolder) {
  const std::string kept =
      "What you have played stays in the folder " + playersFolder + " until you delete it.";
  if (programFolder.empty()) {
    return "On this system: remove the package quintara, in the software centre or with the command\n"
           "sudo apt-get remove quintara\n" +
           kept;
  }
  const std::string all = "On this system: delete the folder " + programFolder + ".";
  return playersFolder.starts_with(programFolder) ? all : all + '\n' + kept;
}

}  // namespace quintara
