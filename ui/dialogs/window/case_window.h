#pragma once

#include <QDialog>
#include <array>

#include "ui/dialogs/CCaseDlg.h"

class QRadioButton;

/// The ways to change letters in a window.
class CaseWindow : public QDialog {
 public:
  /// `dialog` has to outlive the window.
  CaseWindow(CCaseDlg& dialog, QWidget* parent);

  void accept() override;

 private:
  CCaseDlg& m_dialog;
  std::array<QRadioButton*, CCaseDlg::kChoices.size()> m_radios;  ///< in the order of the choices
};
