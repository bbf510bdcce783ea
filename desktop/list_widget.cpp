#include "desktop/list_widget.h"

#include <QtCore/QAbstractListModel>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <limits>
#include <string_view>

#include "desktop/appearance.h"
#include "desktop/units.h"
#include "scene/form.h"

namespace quintara::desktop {

class ListWidget::Items final : public QAbstractListModel {
 public:
  Items(const ListBox& box, QObject* parent) : QAbstractListModel(parent), box_(box) {}

  void Renew() {
    beginResetModel();
    constexpr std::size_t most = std::numeric_limits<int>::max();
    count_ = static_cast<int>(std::min(box_.items().size(), most));
    endResetModel();
  }

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole) return {};
    // No window is wide enough for more, and a line may be as long as a file.
    constexpr std::size_t longest = 1000;
    return ToQString(std::string_view(box_.List(index.row())).substr(0, longest));
  }

 private:
  const ListBox& box_;
  int count_ = 0;
};

ListWidget::ListWidget(ListBox& box, QWidget& parent, Session& session)
    : QListView(&parent), Control(box, *this, session), box_(box), items_(new Items(box, this)) {
  setPalette(PaletteWith(QPalette::Base, box.looks().backColor, QPalette::Text, box.looks().foreColor));
  FillBehindFrame(*this);
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideNone);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setModel(items_);
}

void ListWidget::ShowLooks() {
  setFont(FontOf(box_, zoom()));
  const int scrolled = verticalScrollBar()->value();
  items_->Renew();
  verticalScrollBar()->setValue(scrolled);
}

}  // namespace quintara::desktop
