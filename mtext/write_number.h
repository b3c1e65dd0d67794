#pragma once

#include <cstdint>
#include <string>

namespace mtext::writing {

/// Significant digits of the reals in format codes.
inline constexpr int k_precision = 5;

/// Appends `value` with at most `precision` significant digits, no trailing zeros, and an exponent where that
/// is shorter.
void append_number(std::u16string& out, double value, int precision = k_precision);

/// Appends `value` in decimal digits.
void append_integer(std::u16string& out, std::uint32_t value);

}  // namespace mtext::writing
