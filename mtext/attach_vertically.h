#pragma once

#include "mtext/geom_multitext.h"

namespace mtext {

/// Shifts the columns of a laid-out text so that it stands in the middle or at the bottom of its height, as
/// `info.vertical` says.
void attach_vertically(geom_multitext& text);

}  // namespace mtext
