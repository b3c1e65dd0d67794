#pragma once

#include "mtext/geom_multitext.h"
#include "od/base/export.h"

namespace mtext {

/// Lays `text` out: writes its lines and columns and the `x` and `y` of every part, and the `advance` of
/// tabs. Marks aren't touched, nothing is measured. Linear in the number of parts. `info.columns.heights`
/// must not be empty.
SCRIBE_EXPORT void dispose(geom_multitext& text);

}  // namespace mtext
