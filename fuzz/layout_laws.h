#pragma once

#include "mtext/geom_multitext.h"

/// What holds of every text, whatever was done to it. Each ends the program where it does not.
namespace fuzz {

/// Marks lie in the text, the right way round.
void require_marks_in_range(const mtext::geom_multitext& text);

/// Lays the text out. Lines and columns cover its parts without gap or overlap; a second layout and one of
/// parts measured anew are the same.
void require_layout(mtext::geom_multitext& text);

/// The place that a point hits is one of the laid-out text.
void require_hit(const mtext::geom_multitext& text, double x, double y);

/// Whether two texts have the same parts, places of parts, lines and columns, to the last bit.
bool same_layout(const mtext::geom_multitext& a, const mtext::geom_multitext& b);

/// Whether two texts have marks of the same kinds at the same places in the same order.
bool same_marks(const mtext::geom_multitext& a, const mtext::geom_multitext& b);

}  // namespace fuzz
