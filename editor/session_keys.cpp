#include "editor/session_keys.h"

#include "editor/held_keys.h"
#include "editor/key_table.h"
#include "editor/smart_edit.h"
#include "host/exports.h"
#include "host/input.h"

namespace editing {

namespace {

/// The keys that are held are asked for each time anew: Shift may be let go while a key repeats.
void perform(smart_edit& session, const key_row& row, const HostWindowMessage& message) {
  if (row.kind != kUndoNone) session.pushUndoStep(row.kind);
  if (row.effect == key_effect::moves) session.endUndoRun();
  const int times = row.repeats ? message.repeat : 1;
  for (int i = 0; i < times && row.action; ++i) row.action(session, keys_held(message));
}

}  // namespace

void handle_key_down(smart_edit& session, const HostWindowMessage& message) {
  session.setKeyDown(true);
  const ExMTextEditablePtr alive(&session.editable());
  const key_row* row = find_key(message.code, keys_held(message), session);
  if (row) {
    session.forgetPress();
    session.typed().forget();
    perform(session, *row, message);
  }
  const bool handled = row && row->effect != key_effect::passes;
  if (!handled) session.setKeyDown(false);

  session.repaint(redraw_request::kGadgets);
  if (!row || row->effect != key_effect::moves)
    session.repaint(redraw_request::kGadgets | redraw_request::kText);
  host::update_now();
  if (!row || row->effect != key_effect::restores) alive->endOfEdit(/*relayout=*/true);
  if (row && row->effect == key_effect::formats) alive->notifyWatchers();
}

void handle_character(smart_edit& session, const HostWindowMessage& message) {
  const held_keys held = keys_held(message);
  const auto unit = static_cast<char16_t>(message.code);
  const bool is_tab = unit == u'\t';
  if (session.isKeyDown() || held.ctrl || (is_tab && session.isSingleLine())) return;
  const std::u16string character = session.typed().add(unit);
  if (character.empty()) return;
  const ExMTextEditablePtr text(&session.editable());
  session.forgetPress();
  session.pushUndoStep(kUndoType);
  for (int i = 0; i < message.repeat; ++i) {
    if (is_tab)
      text->insertTab(held.shift);
    else
      text->insertText(character);
  }
  session.repaint(redraw_request::kText);
  text->endOfEdit(/*relayout=*/true);
}

}  // namespace editing
