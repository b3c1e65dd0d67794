#pragma once

#include <QDialog>

class CParagraphDlg;
class FieldEdit;
class QComboBox;
class QGroupBox;

/// The line spacing of paragraphs in a window.
class ParagraphWindow : public QDialog {
 public:
  /// `dialog` has to outlive the window.
  ParagraphWindow(CParagraphDlg& dialog, QWidget* parent);

  void accept() override;
  void done(int result) override;

 private:
  void build();
  void connectControls();
  /// Gives the edit's text to the dialog; when it is refused the edit has the focus again.
  bool leaveValue();
  void showAll();

  CParagraphDlg& m_dialog;
  QGroupBox* m_enabled;
  QComboBox* m_style;
  FieldEdit* m_value;
};
