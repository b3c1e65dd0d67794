#include "ui/dialogs/window/window_display.h"

#include <QApplication>

#include "ui/dialogs/window/columns_window.h"
#include "ui/dialogs/window/paragraph_window.h"
#include "ui/dialogs/window/symbol_window.h"

namespace {

template <class Window, class Dialog>
bool run(Dialog& dialog) {
  if (!qobject_cast<QApplication*>(QCoreApplication::instance())) return false;
  return Window(dialog, QApplication::activeWindow()).exec() == QDialog::Accepted;
}

}  // namespace

bool WindowDisplay::show(CParagraphDlg& dialog) { return run<ParagraphWindow>(dialog); }

bool WindowDisplay::show(CMTextColumnsDlg& dialog) { return run<ColumnsWindow>(dialog); }

bool WindowDisplay::show(CSymbolDlg& dialog) { return run<SymbolWindow>(dialog); }
