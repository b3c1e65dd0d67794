#pragma once

class CCaseDlg;
class CMTextColumnsDlg;
class CParagraphDlg;
class CSymbolDlg;

/// Shows dialogs to the user. A dialog knows what its fields mean and refuse; whoever shows it knows how they
/// look.
class DialogDisplay {
 public:
  virtual ~DialogDisplay() = default;
  /// Whether there is anybody to show a dialog to: a script has nobody.
  virtual bool canShow() const { return true; }
  /// Shows a dialog until it is closed. True for OK: the dialog then holds what the user chose.
  virtual bool show(CParagraphDlg& dialog) = 0;
  virtual bool show(CMTextColumnsDlg& dialog) = 0;
  virtual bool show(CSymbolDlg& dialog) = 0;
  virtual bool show(CCaseDlg& dialog) = 0;
};

namespace dialogs {

/// Who shows dialogs; null while nobody can, and then each is cancelled at once.
DialogDisplay* display();

/// Makes `display` the one that shows dialogs, for as long as the guard lives; the one before comes back
/// after it.
class ShowingDialogs {
 public:
  explicit ShowingDialogs(DialogDisplay& display);
  ~ShowingDialogs();
  ShowingDialogs(const ShowingDialogs&) = delete;
  ShowingDialogs& operator=(const ShowingDialogs&) = delete;

 private:
  DialogDisplay* m_before;
};

}  // namespace dialogs
