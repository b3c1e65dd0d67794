#pragma once

#include <span>
#include <string>

#include "editor/gadgets/drag_measures.h"

namespace editing {

/// What is shown beside the mouse during a drag, a line for each length: in drawing units, to a thousandth of
/// the text height, and in text heights. Empty without lengths.
std::u16string drag_tip(std::span<const mtext::drag_measure> measures, double text_height);

}  // namespace editing
