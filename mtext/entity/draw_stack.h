#pragma once

#include "mtext/geom_part.h"

namespace mtext {

class part_pen;

/// Draws a stacked fraction: its two texts, and the line between them that its kind has.
void draw_stack(const geom_stack& stack, part_pen& pen);

}  // namespace mtext
