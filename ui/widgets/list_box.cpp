#include "ui/widgets/list_box.h"

#include <QAbstractItemView>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace {

/// Rows as high as their icons.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    constexpr QSize kLeast(128, 16);
    return QStyledItemDelegate::sizeHint(option, index).expandedTo(kLeast);
  }
};

}  // namespace

ListBox::ListBox(QWidget* parent) : QComboBox(parent) {
  setItemDelegate(new RowDelegate(this));
  setInsertPolicy(NoInsert);
  setFocusPolicy(Qt::TabFocus);
  setIconSize({16, 16});
  setMaxVisibleItems(20);
}

void ListBox::setRows(const std::vector<Row>& rows) {
  const QSignalBlocker quiet(this);
  clear();
  QFont marked = font();
  marked.setItalic(true);
  for (const Row& row : rows) {
    addItem(row.icon, row.text);
    if (row.marked) setItemData(count() - 1, marked, Qt::FontRole);
  }
}

void ListBox::select(int row) {
  const QSignalBlocker quiet(this);
  setCurrentIndex(row);
}
