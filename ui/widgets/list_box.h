#pragma once

#include <QComboBox>

/// A combo of the toolbar. Opening its list takes the focus from nobody, and what the program puts into it is
/// no choice of the user's.
class ListBox : public QComboBox {
 public:
  explicit ListBox(QWidget* parent);

  /// One row of the list.
  struct Row {
    QString text;
    QIcon icon = {};
    bool marked = false;  ///< set in italics
  };
  void setRows(const std::vector<Row>& rows);
  /// Shows a row, or none for a negative number.
  void select(int row);
};
