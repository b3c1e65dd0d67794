#pragma once

#include <cstddef>

#include "mtext/geom_multitext.h"

/// The lines of a laid-out text, asked for by position.
namespace editing {

/// Index of the line that the part at `position` stands in; the last line for the end of the text and for a
/// text without parts. A text without lines gives 0.
std::size_t line_at(const mtext::geom_multitext& text, std::size_t position);

/// Index of the line in which the caret of `selection` is shown: at a soft wrap the upper one if its line end
/// flag is set.
std::size_t line_of(const mtext::geom_multitext& text, const mtext::marks::selection& selection);

/// The position in line `line` that a caret coming from the X coordinate `x` goes to: in front of the first
/// part whose middle lies beyond `x`, else the line's end, but never behind a break.
std::size_t position_in_line(const mtext::geom_multitext& text, double x, std::size_t line);

/// The caret for a pressed point in text coordinates, with the line end flag set where the point hit the
/// upper of the two lines that share the position.
mtext::marks::selection caret_at_point(const mtext::geom_multitext& text, double x, double y);

}  // namespace editing
