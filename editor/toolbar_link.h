#pragma once

#include <functional>

/// What a session tells the window of its toolbar. The toolbar asks the session for everything else.
using toolbar_link = std::function<void(unsigned message, unsigned wparam)>;

/// Undo and redo are not what they were: the toolbar shows anew whether there is any.
constexpr unsigned kToolbarUndoChanged = 7526;

/// The `wparam` of `kToolbarUndoChanged`.
enum toolbar_undo_change : unsigned {
  kUndoButtonsChanged = 0,  ///< a step or the run of edits alone
  kTextRestored = 1,        ///< undo or redo put another text in place: all controls are out of date
};
