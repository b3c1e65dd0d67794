#include "editor/menu_commands.h"

#include <algorithm>
#include <string_view>

#include "editor/field_commands.h"
#include "editor/smart_edit.h"
#include "editor/symbols.h"

namespace editing {

namespace {

using place = menu_place;

ExMTextEditable& text(const place& at) { return at.session.editable(); }

bool can_undo(const place& at) { return at.session.undo().undo_count() > 0; }
bool can_redo(const place& at) { return at.session.undo().redo_count() > 0; }
bool can_paste(const place& at) { return text(at).canPaste(); }
bool on_field(const place& at) { return at.at && text(at).fieldAt(*at.at); }
bool off_fields(const place& at) { return !on_field(at); }
bool can_make(const place&) { return can_make_fields(); }

bool has_selection(const place& at) {
  const auto all = text(at).selections();
  return std::any_of(all.begin(), all.end(), [](const auto& selection) { return !selection.empty(); });
}

void select_all(const place& at) { text(at).selectRange(0, -1, /*snap=*/false, /*keep=*/false); }
void cut(const place& at) { text(at).cut(); }
void copy(const place& at) { text(at).copy(); }
void paste(const place& at) { text(at).paste(/*single_line=*/false, /*non_empty=*/false); }
void undo(const place& at) { at.session.undoStep(); }
void redo(const place& at) { at.session.redoStep(); }
void make_field(const place& at) { insert_field(at.session); }
void edit_field(const place& at) { change_field(at.session, *at.at); }
void evaluate_field(const place& at) { update_field(at.session, *at.at); }
void convert_field(const place& at) { text(at).convertFieldToText(*at.at); }

constexpr menu_command kCommands[] = {
    {1001, nullptr, nullptr, select_all, kUndoNone},
    {1002, nullptr, has_selection, cut, kUndoMenu},
    {1003, nullptr, has_selection, copy, kUndoNone},
    {1004, nullptr, can_paste, paste, kUndoMenu},
    {1005, nullptr, can_undo, undo, kUndoNone},
    {1006, nullptr, can_redo, redo, kUndoNone},
    {1049, off_fields, can_make, make_field, kUndoNone},
    {1052, on_field, can_make, edit_field, kUndoNone},
    {1054, on_field, nullptr, evaluate_field, kUndoNone},
    {1056, on_field, nullptr, convert_field, kUndoField},
};

const menu_command* find(int command) {
  const auto row = std::find_if(std::begin(kCommands), std::end(kCommands),
                                [command](const menu_command& each) { return each.command == command; });
  return row == std::end(kCommands) ? nullptr : row;
}

}  // namespace

std::span<const menu_command> menu_command_table() { return kCommands; }

bool is_offered(int command, const menu_place& at) {
  if (symbol_of(command)) return true;
  const menu_command* row = find(command);
  return row && (!row->belongs || row->belongs(at));
}

bool is_enabled(int command, const menu_place& at) {
  const menu_command* row = find(command);
  return !row || !row->enabled || row->enabled(at);
}

bool run_menu_command(int command, const menu_place& at) {
  if (!is_offered(command, at) || !is_enabled(command, at)) return false;
  const menu_command* row = find(command);
  const int kind = row ? row->kind : kUndoMenu;
  if (kind != kUndoNone) at.session.pushUndoStep(kind);
  if (row) {
    row->action(at);
  } else {
    const char16_t character = *symbol_of(command);
    text(at).insertText({&character, 1});
  }
  return true;
}

}  // namespace editing
