#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dxf {

/// `text` without the blanks and tabs around it.
std::string_view trim(std::string_view text);

/// The real that `text` spells, without regard to the locale; nothing where it spells none.
std::optional<double> parse_double(std::string_view text);

/// The integer that `text` spells; a real such as `1.0` is cut to its whole part.
std::optional<std::int64_t> parse_int(std::string_view text);

/// The number that up to 16 hexadecimal digits spell.
std::optional<std::uint64_t> parse_handle(std::string_view text);

/// The bytes that pairs of hexadecimal digits spell.
std::optional<std::string> parse_hex(std::string_view text);

/// The shortest text that reads back to `value`, always with a `.`; exponents as in `1.5E-07`.
std::string format_double(double value);

/// Hexadecimal digits in upper case, without leading zeros.
std::string format_handle(std::uint64_t value);

/// Two hexadecimal digits in upper case for each byte.
std::string format_hex(std::string_view bytes);

}  // namespace dxf
