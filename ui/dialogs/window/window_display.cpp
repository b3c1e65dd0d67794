#include "ui/dialogs/window/window_display.h"

#include <QApplication>

#include "ui/dialogs/window/case_window.h"
#include "ui/dialogs/window/columns_window.h"
#include "ui/dialogs/window/paragraph_window.h"
#include "ui/dialogs/window/symbol_window.h"

namespace {

bool has_windows() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

template <class Window, class Dialog>
bool run(Dialog& dialog) {
  return has_windows() && Window(dialog, QApplication::activeWindow()).exec() == QDialog::Accepted;
}

}  // namespace

bool WindowDisplay::canShow() const { return has_windows(); }

bool WindowDisplay::show(CParagraphDlg& dialog) { return run<ParagraphWindow>(dialog); }

bool WindowDisplay::show(CMTextColumnsDlg& dialog) { return run<ColumnsWindow>(dialog); }

bool WindowDisplay::show(CSymbolDlg& dialog) { return run<SymbolWindow>(dialog); }

bool WindowDisplay::show(CCaseDlg& dialog) { return run<CaseWindow>(dialog); }
