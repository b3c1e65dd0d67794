#include "ui/toolbar/spacing_menu.h"

#include <cmath>

#include "editor/smart_edit.h"
#include "ui/dialogs/CParagraphDlg.h"
#include "ui/toolbar/CMTextEdit.h"

namespace toolbar {
namespace {

using mtext::format::line_spacing;

constexpr int kMenu = 148;
constexpr int kButton = 1048;
constexpr int kDrop = 1045;
constexpr int kMore = 1046;
constexpr std::uint32_t kMultiple = 3;
constexpr double kSameFactor = 0.01;

struct factor_row {
  int command;
  double factor;
};
constexpr factor_row kFactors[] = {{1040, 1.0}, {1041, 1.5}, {1042, 2.0}, {1043, 2.5}};

std::optional<line_spacing> spacing_in_dialog(const ExMTextEditable& text) {
  const auto& now = text.currentParagraph().spacing;
  CParagraphDlg dialog(now.has_value(), now.value_or(line_spacing{}), text.textHeight());
  return dialog.doModal() ? std::optional(dialog.result()) : std::nullopt;
}

std::optional<line_spacing> spacing_of(int command, const ExMTextEditable& text) {
  if (command == kDrop) return line_spacing{0, 1.0};
  if (command == kMore) return spacing_in_dialog(text);
  for (const factor_row& row : kFactors)
    if (row.command == command) return line_spacing{kMultiple, row.factor};
  return {};
}

}  // namespace

HostMenu spacing_menu(const ExMTextEditable& text) {
  HostMenu menu = host::resource_menu(kMenu)[0].rows;
  const auto& now = text.currentParagraph().spacing;
  host::change_rows(menu, [&now](HostMenuItem& item) {
    for (const factor_row& row : kFactors) {
      if (row.command != item.command) continue;
      item.radio = true;
      item.checked = now && now->style == kMultiple && std::abs(now->value - row.factor) <= kSameFactor;
    }
  });
  return menu;
}

std::optional<text_change> ask_spacing(CMTextEdit& bar) {
  ExMTextEditable& text = bar.editable();
  const auto spacing = spacing_of(bar.choose(spacing_menu(text), kButton), text);
  if (!spacing) return {};
  return text_change{[&text, spacing = *spacing] { text.applyParagraph({.spacing = spacing}); }, kUndoMenu};
}

}  // namespace toolbar
