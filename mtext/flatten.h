#pragma once

#include "mtext/geom_multitext.h"
#include "mtext/multitext.h"
#include "od/base/export.h"

namespace mtext {

/// The way back from a laid-out text to the logical one: one part for each element, and one field for the
/// characters under each field mark, with the format of the first of them. Neighbours aren't merged. All that
/// layout found, the labels of lists as such, and the selections are dropped.
SCRIBE_EXPORT multitext flatten(const geom_multitext& text);

}  // namespace mtext
