#pragma once

#include <vector>

#include "mtext/letters_dictionary.h"
#include "mtext/mark.h"
#include "mtext/multitext.h"
#include "od/base/export.h"

namespace mtext {

/// What makes a format one for bullets: the font "Symbol", upright and of normal weight.
SCRIBE_EXPORT const format::string_partial& bullet_format();

/// The label of `levels` and the tab behind it: a part for each level, such as "2." and "1.", a bullet
/// without a full stop. Throws `ensure_error` for letters of an alphabet that `dictionary` does not have.
SCRIBE_EXPORT multitext label_text(const std::vector<marks::index>& levels, const format::string& format,
                                   const marks::letters_dictionary& dictionary);

}  // namespace mtext
