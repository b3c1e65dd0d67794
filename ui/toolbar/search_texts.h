#pragma once

#include <optional>

#include "ui/toolbar/text_change.h"

class CMTextEdit;

namespace toolbar {

/// Has the reference product search for the selected text, or for the word at the caret. Without the product
/// the user is told. Never changes the text.
std::optional<text_change> search_texts(CMTextEdit& bar);

}  // namespace toolbar
