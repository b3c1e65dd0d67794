#pragma once

#include <functional>

#include "host/windowless/application.h"
#include "od/db/OdDbDatabase.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/resources/strings.h"

/// An application without a window that has the strings of the dialogs.
struct DialogHost : WindowlessApplication {
  DialogHost() : WindowlessApplication(OdDbDatabase::createEmpty()) { resources::register_strings(); }
};

/// A user who does the same in every dialog: true closes it with OK.
struct ScriptedDisplay : DialogDisplay {
  std::function<bool(CParagraphDlg&)> on_paragraph = [](CParagraphDlg&) { return false; };
  std::function<bool(CMTextColumnsDlg&)> on_columns = [](CMTextColumnsDlg&) { return false; };
  std::function<bool(CSymbolDlg&)> on_symbol = [](CSymbolDlg&) { return false; };
  std::function<bool(CCaseDlg&)> on_case = [](CCaseDlg&) { return false; };

  bool show(CParagraphDlg& dialog) override { return on_paragraph(dialog); }
  bool show(CMTextColumnsDlg& dialog) override { return on_columns(dialog); }
  bool show(CSymbolDlg& dialog) override { return on_symbol(dialog); }
  bool show(CCaseDlg& dialog) override { return on_case(dialog); }

  dialogs::ShowingDialogs showing{*this};
};
