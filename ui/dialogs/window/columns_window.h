#pragma once

#include <QDialog>
#include <map>

#include "ui/dialogs/CMTextColumnsDlg.h"

class FieldEdit;
class QButtonGroup;
class QRadioButton;

/// The column settings of a text in a window.
class ColumnsWindow : public QDialog {
 public:
  /// `dialog` has to outlive the window.
  ColumnsWindow(CMTextColumnsDlg& dialog, QWidget* parent);

  void accept() override;
  void reject() override;
  void done(int result) override;

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  using field = CMTextColumnsDlg::field;
  using Labels = std::map<int, QString>;

  void build();
  QLayout* typeColumn(const Labels& labels);
  QLayout* fieldColumn(const Labels& labels);
  QRadioButton* radio(QButtonGroup& group, int control, const QString& label);
  FieldEdit* edit(field which, const QString& label);
  void choose(int control);
  /// Gives the text of an edit to the dialog; false when it is refused.
  bool leave(field which);
  /// The same for the edit that is typed into, if one is.
  bool leaveCurrent();
  bool leaveAll();
  void showAll();
  void showField(field which);

  CMTextColumnsDlg& m_dialog;
  std::map<int, QRadioButton*> m_radios;  ///< by the numbers of their controls
  std::map<field, FieldEdit*> m_edits;
};
