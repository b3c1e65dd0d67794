#include "ui/toolbar/insert_symbol.h"

#include "editor/smart_edit.h"
#include "ui/dialogs/CSymbolDlg.h"
#include "ui/toolbar/CMTextEdit.h"

namespace toolbar {

std::optional<text_change> ask_symbol(CMTextEdit& bar) {
  ExMTextEditable& text = bar.editable();
  const auto symbol = hostGetSymbol(text.insertionFormat(text.selections().back()));
  if (!symbol) return {};
  return text_change{[&text, symbol = *symbol] { text.insertText(symbol); }, kUndoSymbol};
}

}  // namespace toolbar
