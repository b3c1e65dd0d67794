#pragma once

#include "editor/editable.h"
#include "editor/stored_text.h"
#include "od/base/OdArray.h"

/// The kinds of an undo step: consecutive steps of one kind are one step.
enum undo_kind : int {
  kUndoNone = 0,     ///< no run
  kUndoDelete = 1,   ///< deleting, space, paste, cut by key
  kUndoType = 2,     ///< typing and Enter
  kUndoGadget = 3,   ///< press or drag on a tab, an indent, a column gadget
  kUndoToolbar = 4,  ///< changes from the toolbar
  kUndoSize = 5,     ///< drag of a width or height sizer
  kUndoSymbol = 6,   ///< a character from the symbol dialog
  kUndoField = 7,    ///< a field is inserted, changed, or becomes text
  kUndoMenu = 8,     ///< a choice from a menu
  kUndoPresent = 9   ///< the present state, which undo and redo put aside
};

/// The whole state of a text at one moment: undo goes back to states, it has no inverse operations.
/// All marks, and so all selections, are part of the geometry.
struct UndoSnapshot {
  double width = 0;
  double height = 0;
  double text_height = 0;
  stored_text geometry;
  OdDbObjectId style;
  int attachment = 0;
  int kind = kUndoNone;  ///< 0: an empty step, which holds nothing
};

/// Undo and redo of one session. A *run* is a sequence of like edits; the state in front of it is the step.
/// Steps have no bound: a session is short, and each shares with the one before it what they have in common.
class undo_stack {
 public:
  /// Opens or continues a run: takes a snapshot of `text` unless the run has this kind already, or `kind` is
  /// 0. Redo is dropped only while there is nothing to undo; with steps left, a later redo deliberately
  /// brings back a state from before the new edit.
  void push(int kind, const ExMTextEditable& text);
  /// Goes one step back; false if there is none. The run ends in either case.
  bool undo(ExMTextEditable& text);
  /// The mirror of `undo`.
  bool redo(ExMTextEditable& text);
  /// Goes back to the newest step and drops it, as if the edit behind it had never begun. Nothing happens if
  /// there is none.
  void take_back(ExMTextEditable& text);
  /// A caret key ends the run, and drops redo if there is nothing to undo.
  void start_move();

  bool is_empty() const { return m_undo.isEmpty(); }
  unsigned undo_count() const { return m_undo.size(); }
  unsigned redo_count() const { return m_redo.size(); }
  int run_kind() const { return m_run_kind; }
  /// All steps, the oldest first.
  const OdArray<UndoSnapshot>& undo_steps() const { return m_undo; }
  const OdArray<UndoSnapshot>& redo_steps() const { return m_redo; }

 private:
  OdArray<UndoSnapshot> m_undo;
  OdArray<UndoSnapshot> m_redo;
  int m_run_kind = kUndoNone;
};
