#pragma once

#include <QDialog>

#include "ui/field_dialog/CFieldDlg.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

/// Shows the choice of a field.
class FieldWindow : public QDialog {
 public:
  /// The choice has to outlive the window.
  FieldWindow(CFieldDlg& choice, const QString& title, QWidget* parent);

 private:
  void layOut();
  void connectWidgets();
  /// Shows everything but the widget that the user is writing in.
  void showChoice(const QWidget* writing);
  void showFormats();

  CFieldDlg& m_choice;
  QListWidget* m_kinds;
  QListWidget* m_formats;
  QLabel* m_argument_label;
  QLineEdit* m_argument;
  QComboBox* m_property;
  QLineEdit* m_code;
  QLabel* m_preview;
  QPushButton* m_ok = nullptr;
  bool m_showing = false;
};
