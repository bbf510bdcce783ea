#include "desktop/shot_log.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QDir>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QShortcut>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

#include <utility>
#include <vector>

#include "desktop/appearance.h"
#include "desktop/screens.h"
#include "desktop/units.h"
#include "front/placement.h"
#include "front/shot_table.h"

namespace quintara::desktop {

// A line a shot. While a shell flies only its path grows, which the table does not show.
class ShotLog::Table final : public QAbstractTableModel {
 public:
  Table(const ShotWatch& watch, QObject* parent) : QAbstractTableModel(parent), watch_(watch) {}

  // Whether lines came or went.
  bool Follow() {
    if (std::exchange(changes_, watch_.changes()) == watch_.changes()) return false;
    const int count = static_cast<int>(watch_.shots().size());
    const Shot::End end = count > 0 ? watch_.shots().back().end : Shot::End::InTheAir;
    const bool ended = std::exchange(lastEnd_, end) != end;
    if (count == lines_) {
      if (ended) emit dataChanged(index(count - 1, 0), index(count - 1, columnCount({}) - 1));
      return false;
    }
    beginResetModel();
    lines_ = count;
    endResetModel();
    return true;
  }

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : lines_; }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(ShotFields().size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignCenter);
    if (role != Qt::DisplayRole) return {};
    return ToQString(FieldsOf(At(index.row()))[static_cast<std::size_t>(index.column())]);
  }

  // An empty one where the game that it was fired in is over by now.
  Shot At(int line) const {
    const auto i = static_cast<std::size_t>(line);
    return i < watch_.shots().size() ? watch_.shots()[i] : Shot();
  }

  QVariant headerData(int section, Qt::Orientation direction, int role) const override {
    if (role != Qt::DisplayRole || direction != Qt::Horizontal) return {};
    // The unit has a line of its own.
    return ToQString(ShotHeadings()[static_cast<std::size_t>(section)]).replace(" (", "\n(");
  }

 private:
  const ShotWatch& watch_;
  int lines_ = 0;
  Shot::End lastEnd_ = Shot::End::InTheAir;
  unsigned changes_ = 0;
};

ShotLog::ShotLog(QWidget& window, const ShotWatch& watch)
    : QWidget(&window, Qt::Dialog),
      watch_(watch),
      table_(new Table(watch, this)),
      view_(new QTableView(this)) {
  setWindowTitle("Shots of this game");
  view_->setModel(table_);
  view_->setAccessibleName("Shots of this game");
  view_->setSelectionBehavior(QAbstractItemView::SelectRows);
  view_->setTabKeyNavigation(false);
  view_->verticalHeader()->hide();
  view_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  view_->horizontalHeader()->setHighlightSections(false);
  nothingYet_ = new QLabel("No shell has been fired in this game yet.", view_);
  nothingYet_->setAlignment(Qt::AlignCenter);
  (new QVBoxLayout(view_->viewport()))->addWidget(nothingYet_);

  auto* copy = new QPushButton("&Copy", this);
  auto* save = new QPushButton("&Save as CSV...", this);
  auto* close = new QPushButton("Close", this);
  copy->setToolTip("Copy the table, or the lines selected in it, for a spreadsheet (Ctrl+C)");
  save->setToolTip("Save the table as a file that every spreadsheet reads (Ctrl+S)");
  close->setToolTip("Close this window (Esc)");
  connect(copy, &QPushButton::clicked, this, &ShotLog::Copy);
  connect(save, &QPushButton::clicked, this, &ShotLog::AskForFile);
  connect(close, &QPushButton::clicked, this, &QWidget::close);

  new QShortcut(QKeySequence("Ctrl+C"), this, this, &ShotLog::Copy);
  new QShortcut(QKeySequence("Ctrl+S"), this, this, &ShotLog::AskForFile);
  new QShortcut(QKeySequence("Esc"), this, this, &QWidget::close);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(copy);
  buttons->addWidget(save);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(view_);
  layout->addLayout(buttons);
}

void ShotLog::Open(const Zoom& zoom) {
  if (zoom_ != zoom || !testAttribute(Qt::WA_Moved)) {
    Enlarge(zoom);
    PlaceOver(*parentWidget());
  }
  show();
  Follow(zoom);
  raise();
  activateWindow();
  view_->setFocus();
}

// Over the sky of the profile, where least is covered.
void ShotLog::PlaceOver(const QWidget& window) {
  constexpr PixelSize natural{760, 250};
  constexpr int down = 60;
  resize(zoom_(natural.width), zoom_(natural.height));
  const PixelPoint place{window.x() + (window.width() - width()) / 2, window.y() + zoom_(down)};
  const PixelSize outer{width() + windowFrame.width, height() + windowFrame.height};
  move(ToQPoint(WhollySeen(place, outer, FromQt(RoomOn(window.screen())))));
}

void ShotLog::Follow(const Zoom& zoom) {
  if (!isVisible()) return;
  if (zoom_ != zoom) Enlarge(zoom);
  if (table_->Follow()) view_->scrollToBottom();
  nothingYet_->setVisible(watch_.shots().empty());
}

void ShotLog::Enlarge(const Zoom& zoom) {
  zoom_ = zoom;
  const QFont font = ToQFont(Font{}, zoom);
  for (QWidget* widget : findChildren<QWidget*>()) widget->setFont(font);
  view_->verticalHeader()->setDefaultSectionSize(QFontMetrics(font).height() * 3 / 2);
}

void ShotLog::Copy() const {
  std::vector<Shot> chosen;
  for (int line = 0; line < table_->rowCount({}); ++line) {
    if (view_->selectionModel()->isRowSelected(line)) chosen.push_back(table_->At(line));
  }
  QGuiApplication::clipboard()->setText(ToQString(TableOf(chosen.empty() ? watch_.shots() : chosen, '\t')));
}

void ShotLog::AskForFile() {
  auto* dialog = new QFileDialog(this, "Save the shots of this game");
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setNameFilters({"Comma-separated values (*.csv)", "All files (*)"});
  dialog->setDefaultSuffix("csv");
  dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  dialog->selectFile("shots.csv");
  connect(dialog, &QFileDialog::fileSelected, this, &ShotLog::SaveAs);
  // The game goes on meanwhile.
  dialog->open();
}

void ShotLog::SaveAs(const QString& path) {
  QSaveFile file(path);
  const QByteArray table = QByteArray::fromStdString(TableOf(watch_.shots()));
  if (file.open(QIODevice::WriteOnly) && file.write(table) == table.size() && file.commit()) return;
  auto* box = new QMessageBox(QMessageBox::Warning, "Quintara",
                              QString("The table could not be saved in the file %1: %2.")
                                  .arg(QDir::toNativeSeparators(path), file.errorString()),
                              QMessageBox::Ok, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  box->setFont(ToQFont(Font{}, zoom_));
  box->open();
}

}  // namespace quintara::desktop
