#pragma once

#include "mtext/line_state.h"

namespace mtext {

/// Moves the placed parts of a finished line to where the alignment of its paragraph wants them.
void align_line(const line_frame& frame, const line_state& state);

}  // namespace mtext
