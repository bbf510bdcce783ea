#pragma once

#include <QtCore/QString>

namespace quintara::desktop {

// Where the program's files lie.
struct ProgramFolders {
  QString data;            // documents, pictures and sounds
  QString own;             // the files that the program writes
  bool installed = false;  // for all, spread over the folders of the system
};

// Beside the executable lies a data folder where it was built or unpacked, and all is kept in it; if it can't
// be written to, what is written goes to the player's folder. Otherwise the program is installed for all:
// `installedData` is the way to its data folder from that of the executable. Where there is none at all, the
// player's folder is written to.
ProgramFolders FindFolders(const QString& executableFolder, const QString& installedData,
                           const QString& playersFolder);

// Those of the running program. There must be an application object.
ProgramFolders FindFolders();

}  // namespace quintara::desktop
