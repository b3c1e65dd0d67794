#pragma once

#include "mtext/geom_multitext.h"

namespace mtext {

/// The paragraph whose stops and indents the strip above column `index` shows: that of the begin of the first
/// selection that the column holds a part of; null if there is none. A caret belongs to the column that holds
/// the part behind it, so one at the end of the text belongs to none.
const format::paragraph* shown_paragraph(const geom_multitext& text, std::size_t index);

}  // namespace mtext
