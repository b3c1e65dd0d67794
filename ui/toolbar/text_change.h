#pragma once

#include <functional>

#include "editor/undo_stack.h"

/// What an action of the toolbar does to the text, once all is asked that it has to ask.
struct text_change {
  std::function<void()> run;
  int kind = kUndoToolbar;  ///< undo step pushed first; `kUndoNone`: none
};
