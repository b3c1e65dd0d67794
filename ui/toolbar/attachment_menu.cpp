#include "ui/toolbar/attachment_menu.h"

#include "editor/smart_edit.h"
#include "ui/toolbar/CMTextEdit.h"

namespace toolbar {
namespace {

constexpr int kMenu = 152;
constexpr int kButton = 1054;
constexpr int kFirst = 1114;  ///< of attachment 0
constexpr int kLast = 1122;

}  // namespace

HostMenu attachment_menu(const ExMTextEditable& text) {
  HostMenu menu = host::resource_menu(kMenu)[0].rows;
  host::change_rows(menu, [&text](HostMenuItem& row) {
    row.radio = row.command != 0;
    row.checked = row.command == kFirst + text.attachment();
  });
  return menu;
}

std::optional<text_change> ask_attachment(CMTextEdit& bar) {
  ExMTextEditable& text = bar.editable();
  const int command = bar.choose(attachment_menu(text), kButton);
  if (command < kFirst || command > kLast) return {};
  return text_change{[&text, command] { text.setAttachment(command - kFirst); }, kUndoMenu};
}

}  // namespace toolbar
