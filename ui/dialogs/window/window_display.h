#pragma once

#include "ui/dialogs/dialog_display.h"

/// Shows dialogs in windows over the one that the user works in. In a program without windows each is
/// cancelled at once.
class WindowDisplay : public DialogDisplay {
 public:
  bool canShow() const override;
  bool show(CParagraphDlg& dialog) override;
  bool show(CMTextColumnsDlg& dialog) override;
  bool show(CSymbolDlg& dialog) override;
  bool show(CCaseDlg& dialog) override;
};
