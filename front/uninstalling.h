#pragma once

#include <string>

#include "scene/message_box.h"

namespace quintara {

// Whether a box is the game's note on how it is uninstalled. The note tells of a system that may not be the
// player's.
bool IsNoteOnUninstalling(const MessageBox& box);

// What is to stand below that note: how the program is taken off this system. `programFolder` is the folder
// that holds it all, or empty where it is spread over the system as a package.
std::string HowToUninstall(const std::string& programFolder, const std::string& playersFolder);

}  // namespace quintara
