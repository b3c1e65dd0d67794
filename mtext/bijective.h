#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mtext::marks {

// Counting with letters: bijective numeration, whose base is the number of letters and which has no zero.
// With 26 letters a is 1, z is 26, aa is 27.

/// Reads letters up to and with a full stop from the front of `text` and gives their number, modulo 2^64.
/// Nothing, and no move, for anything else: another character, no letter at all, no full stop.
std::optional<std::uint64_t> read_letters(std::u16string_view& text, std::u16string_view letters);

/// `value` in letters, without a full stop; nothing for 0. Throws `ensure_error` when there are no letters to
/// write it with, and `std::length_error` when it takes more than 10,000,000: so many only a base of 1 takes.
std::u16string write_letters(std::uint64_t value, std::u16string_view letters);

}  // namespace mtext::marks
