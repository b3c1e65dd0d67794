#pragma once

#include <cstddef>

#include "mtext/geom_multitext.h"

/// Steps of the caret by one character. A character that is a pair of parts is one step, and no caret stands
/// inside it. A position inside one counts as its begin on the way left and as its end on the way right.
namespace editing {

/// The position in front of the character before `position`, which has to be above 0.
std::size_t step_left(const mtext::geom_multitext& text, std::size_t position);

/// The position behind the character at `position`, which has to be below the part count.
std::size_t step_right(const mtext::geom_multitext& text, std::size_t position);

/// `position`, or the end of the character that it lies inside.
std::size_t off_pair(const mtext::geom_multitext& text, std::size_t position);

/// Widens a selection to whole characters; a caret goes behind the character that it is in.
void leave_pairs(const mtext::geom_multitext& text, mtext::marks::selection& range);

}  // namespace editing
