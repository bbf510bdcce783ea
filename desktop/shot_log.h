#pragma once

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include "front/zoom.h"

class QLabel;
class QTableView;

namespace quintara {
class ShotWatch;
}

namespace quintara::desktop {

// The window with the shots of this game as a table, to be copied and saved.
class ShotLog final : public QWidget {
 public:
  // Belongs to a window and goes with it.
  ShotLog(QWidget& window, const ShotWatch& watch);

  // Shows itself in front of the other windows.
  void Open(const Zoom& zoom);
  // Takes over what has changed since the last call.
  void Follow(const Zoom& zoom);
  // Puts the selected lines on the clipboard, or all where none is selected.
  void Copy() const;
  // As comma-separated values. Why it could not be done is told; an older file is left as it was then.
  void SaveAs(const QString& path);

 private:
  class Table;
  void AskForFile();
  void Enlarge(const Zoom& zoom);
  void PlaceOver(const QWidget& window);

  const ShotWatch& watch_;
  Table* table_;
  QTableView* view_;
  QLabel* nothingYet_;
  Zoom zoom_;
};

}  // namespace quintara::desktop
