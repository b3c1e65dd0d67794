#include "ui/toolbar/columns_menu.h"

#include <algorithm>

#include "editor/smart_edit.h"
#include "host/events.h"
#include "ui/dialogs/CMTextColumnsDlg.h"
#include "ui/resources/message_format.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/column_choice.h"

namespace toolbar {
namespace {

constexpr int kMenu = 151;
constexpr int kButton = 1053;
constexpr int kOutOfRange = 1322;
constexpr double kLeastColumns = 2;

bool is_columns_command(int command) { return command >= kManualHeight && command <= kColumnParameters; }

std::optional<mtext::column_settings> columns_in_dialog(const column_values& values) {
  CMTextColumnsDlg dialog(values);
  return dialog.doModal() ? std::optional(columns_of(dialog.values())) : std::nullopt;
}

std::optional<mtext::column_settings> chosen_columns(int command, const ExMTextEditable& text) {
  if (command == kMoreColumns) return columns_in_dialog(more_columns(text.text(), text.frame().width));
  if (command == kColumnParameters) return columns_in_dialog(column_parameters(text.text()));
  return columns_of(command, text.text());
}

void refuse_column() {
  const auto most = static_cast<double>(kMostColumns);
  hostAlert(resources::format_string(kOutOfRange, {kLeastColumns, most}));
}

/// Columns told by their heights get one more for each caret.
void insert_column(ExMTextEditable& text) {
  mtext::column_settings columns = text.text().info.columns;
  if (columns.kind == 0) {
    columns.heights.resize(columns.heights.size() + text.selectionCount(), columns.heights.back());
    text.setColumns(columns);
  }
  text.insertParagraph(/*column_break=*/true);
}

std::optional<text_change> column_insertion(ExMTextEditable& text) {
  if (count_of(text.text()) < kMostColumns) return text_change{[&text] { insert_column(text); }, kUndoMenu};
  refuse_column();
  return {};
}

}  // namespace

HostMenu columns_menu(const ExMTextEditable& text) {
  HostMenu menu = host::resource_menu(kMenu)[0].rows;
  const int checked = checked_command(text.text().info.columns);
  host::change_rows(menu, [checked](HostMenuItem& row) {
    row.radio =
        is_columns_command(row.command) && row.command != kInsertColumn && row.command != kColumnParameters;
    row.checked = row.command == checked;
  });
  return menu;
}

std::optional<text_change> columns_change(int command, ExMTextEditable& text) {
  if (command == kInsertColumn) return column_insertion(text);
  const auto columns = chosen_columns(command, text);
  if (!columns) return {};
  return text_change{[&text, columns = *columns] { text.setColumns(columns); }, kUndoMenu};
}

std::optional<text_change> ask_columns(CMTextEdit& bar) {
  return columns_change(bar.choose(columns_menu(bar.editable()), kButton), bar.editable());
}

}  // namespace toolbar
