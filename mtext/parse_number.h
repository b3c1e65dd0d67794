#pragma once

#include <cstdint>
#include <optional>

#include "mtext/text_cursor.h"

namespace mtext::reading {

/// A run of decimal digits, wrapping at 32 bits. Nothing, and no move, without a digit.
std::optional<std::uint32_t> read_unsigned(text_cursor& cursor);

/// A real number as the codes write it: sign, digits, fraction, exponent. No digits at all are 0, and no
/// move. Nothing, and no move, for a dot without digits behind it.
/// The sign is lost where the integer part is 0: "-0.5" is 0.5. Deliberate: existing drawings were written
/// and read like this.
std::optional<double> read_number(text_cursor& cursor);

}  // namespace mtext::reading
