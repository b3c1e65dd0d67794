#pragma once

#include <string>

#include "mtext/geom_part.h"

namespace editing {

/// Where a raised or lowered text stands: in one half of a stack whose other half is empty.
enum class stack_half { none, upper, lower };

/// The half that a part is the text of; `none` for all that is no such stack.
stack_half half_of(const mtext::geom_part& part);

/// The text of a part that is such a half; empty for any other.
std::u16string letters_of_half(const mtext::geom_part& part);

}  // namespace editing
