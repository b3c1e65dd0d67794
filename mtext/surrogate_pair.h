#pragma once

#include <cstddef>

#include "mtext/geom_part.h"
#include "od/base/export.h"

namespace mtext {

// A character beyond the basic plane is two UTF-16 units, and so two elements of a text. Its first half
// measures and draws the whole character; the second half is a word without width.

/// Whether `unit` is the first half of a character.
inline bool is_high_half(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }

/// Whether `unit` is the second half of a character.
inline bool is_low_half(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// Whether `position` lies between the halves of one character. Any position may be asked for.
SCRIBE_EXPORT bool splits_pair(const geom_parts& parts, std::size_t position);

/// Measures the character whose halves meet at `position`; nothing happens where none do. The format is that
/// of the first half.
SCRIBE_EXPORT void measure_pair(geom_parts& parts, std::size_t position, const string_size_finder& finder);

}  // namespace mtext
