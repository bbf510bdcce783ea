#include "desktop/program_folders.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace quintara::desktop {

ProgramFolders FindFolders(const QString& executableFolder, const QString& installedData,
                           const QString& playersFolder) {
  const QString beside = executableFolder + "/data";
  if (QFileInfo(beside).isDir()) return {beside, QFileInfo(beside).isWritable() ? beside : playersFolder};
  const QString installed = QDir::cleanPath(executableFolder + '/' + installedData);
  // Even one that could be written to belongs to all players, and to whoever will remove the program.
  if (QFileInfo(installed).isDir()) return {installed, playersFolder, true};
  return {beside, playersFolder};
}

ProgramFolders FindFolders() {
  const QString players = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return FindFolders(QCoreApplication::applicationDirPath(), INSTALLED_DATA, players + "/quintara");
}

}  // namespace quintara::desktop
