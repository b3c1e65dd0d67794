#pragma once

#include "mtext/line_state.h"

namespace mtext {

/// Gives the parts of the current segment their `x`, one behind the other, and returns the X where it ends.
double place_segment(const line_frame& frame, const line_state& state);

/// Gives the parts of a line their `y` relative to the line's top: on the baseline, in the middle or at the
/// top, as their formats say. Other alignments leave `y` as it was.
void place_vertically(const line_frame& frame, const line_state& state);

}  // namespace mtext
