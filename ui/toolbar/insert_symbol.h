#pragma once

#include <optional>

#include "ui/toolbar/text_change.h"

class CMTextEdit;

namespace toolbar {

/// A character of the symbol dialog, typed at every caret.
std::optional<text_change> ask_symbol(CMTextEdit& bar);

}  // namespace toolbar
