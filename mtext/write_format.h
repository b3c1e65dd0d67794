#pragma once

#include <string>

#include "mtext/format_string.h"

namespace mtext::writing {

/// Appends the codes of `delta` in their fixed order. A font code is written whole: what `delta` does not
/// hold of it comes from `current`. Throws `std::out_of_range` for the name of a shape font under four
/// characters.
void append_format_codes(std::u16string& out, const format::string_partial& delta,
                         const format::string& current);

}  // namespace mtext::writing
