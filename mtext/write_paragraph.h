#pragma once

#include <string>

#include "mtext/format_paragraph.h"

namespace mtext::writing {

/// Appends the code of the change `p`, whose lengths are multiples of the text height; nothing for an empty
/// one. The first code written is a `\px`, and sets `px_written`; those behind it are `\p`.
void append_paragraph_change(std::u16string& out, const format::paragraph_partial& p, bool& px_written);

}  // namespace mtext::writing
