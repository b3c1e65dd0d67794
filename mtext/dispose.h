#pragma once

#include <cstddef>

#include "mtext/geom_multitext.h"
#include "od/base/export.h"

namespace mtext {

/// Lays `text` out: writes its lines and columns and the `x` and `y` of every part, and the `advance` of
/// tabs. Marks aren't touched, nothing is measured. Linear in the number of parts. `info.columns.heights`
/// must not be empty.
SCRIBE_EXPORT void dispose(geom_multitext& text);

/// What an edit left alone of a text that was laid out. The settings and the formats of paragraphs are as
/// they were then.
struct text_edit {
  std::size_t before = 0;       ///< that many parts at the start are as they were
  std::size_t behind = 0;       ///< that many parts at the end are as they were
  bool paragraph_ends = false;  ///< ends of paragraphs came or went
};

/// Lays out anew a text whose `lines` are those in front of an edit, with the same result as laying out all
/// of it: lines that the edit cannot have changed are not broken again, and their parts are touched only
/// where they move. A text of several columns, or one that does not hang from its top, is laid out whole.
SCRIBE_EXPORT void dispose(geom_multitext& text, const text_edit& edit);

}  // namespace mtext
