#pragma once

#include <optional>

#include "ui/toolbar/text_change.h"

class CMTextEdit;

namespace toolbar {

/// A field of the application's field dialog; nothing where it has none.
std::optional<text_change> ask_field(CMTextEdit& bar);

}  // namespace toolbar
