#include "editor/key_table.h"

#include <algorithm>

#include "editor/letter_toggle.h"
#include "editor/part_kinds.h"
#include "editor/smart_edit.h"
#include "host/key_code.h"

namespace editing {

namespace {

using session = smart_edit;
using held = held_keys;

constexpr auto kEdits = key_effect::edits;
constexpr auto kMoves = key_effect::moves;
constexpr auto kRestores = key_effect::restores;
constexpr auto kPasses = key_effect::passes;
constexpr auto kFormats = key_effect::formats;

bool ctrl(const session&, const held& keys) { return keys.ctrl_alone(); }
bool shift(const session&, const held& keys) { return keys.shift; }
bool ctrl_shift(const session&, const held& keys) { return keys.ctrl_alone() && keys.shift; }
/// A single-line text has one format, and a session with few tools has no buttons for weight and slant.
bool formats_letters(const session& s, const held& keys) {
  return keys.ctrl_alone() && !s.isSingleLine() && !s.isCompact();
}
bool scores_letters(const session& s, const held& keys) { return keys.ctrl_alone() && !s.isSingleLine(); }
bool existing_line(const session& s, const held&) { return s.editsExistingLine(); }

bool several_selections(const session& s, const held&) { return s.editable().selectionCount() > 1; }

/// In a new single-line text Enter behind an empty last line is the end of it.
bool ends_lines(const session& s, const held&) {
  const auto& text = s.editable().text();
  const auto selections = s.editable().selections();
  const bool at_end = std::all_of(selections.begin(), selections.end(), [&](const auto& selection) {
    return selection.empty() && selection.begin == text.parts.size();
  });
  return s.isSingleLine() && at_end && (text.parts.empty() || is_break(text.parts.back()));
}

void accept(session& s, const held&) { s.accept(); }
void cancel(session& s, const held&) { s.cancel(); }
void delete_back(session& s, const held& keys) { s.editable().deleteBack(keys.ctrl_alone()); }
void line_break(session& s, const held&) { s.editable().insertLineBreak(); }
void new_paragraph(session& s, const held&) { s.editable().insertParagraph(/*column_break=*/false); }
void first_selection(session& s, const held&) { s.editable().keepFirstSelection(); }
void fixed_space(session& s, const held&) { s.editable().insertNonBreakingSpace(); }
void text_start(session& s, const held& keys) { s.editable().moveTextStart(keys.shift); }
void text_end(session& s, const held& keys) { s.editable().moveTextEnd(keys.shift); }
void line_end(session& s, const held& keys) { s.editable().moveEnd(keys.shift); }
void line_start(session& s, const held& keys) { s.editable().moveHome(keys.shift); }
void left(session& s, const held& keys) { s.editable().moveLeft(keys.shift, keys.ctrl_alone()); }
void right(session& s, const held& keys) { s.editable().moveRight(keys.shift, keys.ctrl_alone()); }
void up(session& s, const held& keys) { s.editable().moveUp(keys.shift, keys.ctrl && keys.alt); }
void down(session& s, const held& keys) { s.editable().moveDown(keys.shift, keys.ctrl && keys.alt); }
void copy(session& s, const held&) { s.editable().copy(); }
void cut(session& s, const held&) { s.editable().cut(); }
void paste_codes(session& s, const held&) { s.editable().paste(/*single_line=*/false, /*non_empty=*/false); }
void paste(session& s, const held&) { s.editable().paste(s.isSingleLine(), s.editsExistingLine()); }
void delete_forward(session& s, const held&) { s.editable().deleteForward(); }
void select_all(session& s, const held&) { s.editable().selectRange(0, -1, /*snap=*/false, /*keep=*/false); }
void column_break(session& s, const held&) { s.editable().insertColumnBreak(); }
void redo(session& s, const held&) { s.redoStep(); }
void undo(session& s, const held&) { s.undoStep(); }
void bold(session& s, const held&) { toggle(s.editable(), letter_toggle::bold); }
void italic(session& s, const held&) { toggle(s.editable(), letter_toggle::italic); }
void underline(session& s, const held&) { toggle(s.editable(), letter_toggle::underline); }
void overline(session& s, const held&) { toggle(s.editable(), letter_toggle::overline); }

// Space and V open a step of their own in front of the character's, so that each costs an undo step after
// another key. That is deliberate.
constexpr key_row kRows[] = {
    {VK_BACK, nullptr, delete_back, kUndoDelete, kEdits, true, u"deletes back; with Ctrl a word"},
    {VK_RETURN, existing_line, accept, kUndoType, kEdits, false, u"accepts the text"},
    {VK_RETURN, shift, line_break, kUndoType, kEdits, true, u"breaks the line"},
    {VK_RETURN, ctrl, accept, kUndoType, kEdits, false, u"accepts the text"},
    {VK_RETURN, ends_lines, accept, kUndoType, kEdits, false, u"accepts the text"},
    {VK_RETURN, nullptr, new_paragraph, kUndoType, kEdits, true, u"ends the paragraph"},
    {VK_ESCAPE, several_selections, first_selection, kUndoNone, kEdits, false, u"keeps the first selection"},
    {VK_ESCAPE, nullptr, cancel, kUndoNone, kEdits, false, u"cancels"},
    {VK_SPACE, ctrl_shift, fixed_space, kUndoDelete, kEdits, false, u"types a space that does not break"},
    {VK_SPACE, nullptr, nullptr, kUndoDelete, kPasses, false, u"types a space"},
    {VK_PRIOR, nullptr, text_start, kUndoNone, kMoves, false, u"goes to the start of the text"},
    {VK_NEXT, nullptr, text_end, kUndoNone, kMoves, false, u"goes to the end of the text"},
    {VK_END, nullptr, line_end, kUndoNone, kMoves, false, u"goes to the end of the line"},
    {VK_HOME, nullptr, line_start, kUndoNone, kMoves, false, u"goes to the start of the line"},
    {VK_LEFT, nullptr, left, kUndoNone, kMoves, true, u"goes left; with Ctrl a word"},
    {VK_UP, nullptr, up, kUndoNone, kMoves, true, u"goes up; with Ctrl and Alt adds a caret"},
    {VK_RIGHT, nullptr, right, kUndoNone, kMoves, true, u"goes right; with Ctrl a word"},
    {VK_DOWN, nullptr, down, kUndoNone, kMoves, true, u"goes down; with Ctrl and Alt adds a caret"},
    {VK_INSERT, ctrl, copy, kUndoNone, kEdits, false, u"copies"},
    {VK_INSERT, shift, paste_codes, kUndoDelete, kEdits, false, u"pastes"},
    {VK_DELETE, shift, cut, kUndoDelete, kEdits, false, u"cuts"},
    {VK_DELETE, nullptr, delete_forward, kUndoDelete, kEdits, true, u"deletes"},
    {'A', ctrl, select_all, kUndoNone, kEdits, false, u"selects all"},
    {'B', formats_letters, bold, kUndoToolbar, kFormats, false, u"toggles bold"},
    {'C', ctrl, copy, kUndoNone, kEdits, false, u"copies"},
    {'I', formats_letters, italic, kUndoToolbar, kFormats, false, u"toggles italic"},
    {'O', scores_letters, overline, kUndoToolbar, kFormats, false, u"toggles overlined"},
    {'T', ctrl, column_break, kUndoNone, kEdits, false, u"breaks the column"},
    {'U', scores_letters, underline, kUndoToolbar, kFormats, false, u"toggles underlined"},
    {'V', ctrl, paste, kUndoDelete, kEdits, false, u"pastes"},
    {'V', nullptr, nullptr, kUndoDelete, kPasses, false, u"types a v"},
    {'X', ctrl, cut, kUndoDelete, kEdits, false, u"cuts"},
    {'Y', ctrl, redo, kUndoNone, kRestores, false, u"redoes"},
    {'Z', ctrl, undo, kUndoNone, kRestores, false, u"undoes"},
};

}  // namespace

std::span<const key_row> key_table() { return kRows; }

const key_row* find_key(unsigned key, const held_keys& held_now, const smart_edit& of_session) {
  const auto fits = [&](const key_row& row) {
    return row.key == key && (!row.applies || row.applies(of_session, held_now));
  };
  const auto found = std::find_if(std::begin(kRows), std::end(kRows), fits);
  return found == std::end(kRows) ? nullptr : found;
}

}  // namespace editing
