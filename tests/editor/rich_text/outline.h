#pragma once

#include <string>

#include "editor/rich_text/rich_text.h"

/// A text drawn in one line: paragraphs end with `¶`, a label stands in angle brackets, and runs that have a
/// style stand in square brackets behind what they have: `b`, `i`, `u`, `#rrggbb`, a size, `^` raised, `_`
/// lowered.
std::string outline(const rich::text& text);
