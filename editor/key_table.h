#pragma once

#include <span>

#include "editor/held_keys.h"

class smart_edit;

namespace editing {

/// What a row does besides its action.
enum class key_effect {
  edits,     ///< all is painted anew
  moves,     ///< the caret alone: starts a new undo run, and the text layer stays as it is
  formats,   ///< edits, and the watchers are told even where no selection moves
  restores,  ///< another text takes its place, laid out already: nothing of an edit is left to close
  passes,    ///< the key is not handled: its character message comes through
};

/// One row of the key table.
struct key_row {
  unsigned key;                                          ///< `HostKeyCode`, or the character of a letter key
  bool (*applies)(const smart_edit&, const held_keys&);  ///< null: always
  void (*action)(smart_edit&, const held_keys&);         ///< null for rows that pass
  int kind;                                              ///< undo step pushed first; `kUndoNone`: none
  key_effect effect;
  bool repeats;          ///< the action runs as often as the key came
  const char16_t* help;  ///< what the key does, for the user
};

/// All rows. Of several rows for a key the first that applies counts.
std::span<const key_row> key_table();

/// The row for a key in the present state of a session; null for a key that is not handled.
const key_row* find_key(unsigned key, const held_keys& held, const smart_edit& session);

}  // namespace editing
