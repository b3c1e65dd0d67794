#include "mtext/parse_number.h"

#include <cmath>

namespace mtext::reading {

namespace {

bool is_digit(const text_cursor& cursor) {
  return !cursor.ended() && *cursor.at >= u'0' && *cursor.at <= u'9';
}

std::uint32_t take_digit(text_cursor& cursor) { return static_cast<std::uint32_t>(*cursor.at++ - u'0'); }

/// An optional `-` and digits, wrapping at 32 bits. Without digits the cursor stays before the `-`.
std::optional<std::int32_t> read_integer(text_cursor& cursor) {
  text_cursor ahead = cursor;
  bool negative = ahead.accept(u'-');
  auto magnitude = read_unsigned(ahead);
  if (!magnitude) return std::nullopt;
  cursor = ahead;
  return static_cast<std::int32_t>(negative ? 0 - *magnitude : *magnitude);
}

/// The digits behind the dot; nothing when there are none.
std::optional<double> read_fraction(text_cursor& cursor) {
  if (!is_digit(cursor)) return std::nullopt;
  double sum = 0.0;
  for (double power = 0.1; is_digit(cursor); power *= 0.1) sum += take_digit(cursor) * power;
  return sum;
}

double read_exponent(text_cursor& cursor) {
  if (!cursor.accept(u'e') && !cursor.accept(u'E')) return 0.0;
  return read_integer(cursor).value_or(0);
}

}  // namespace

std::optional<std::uint32_t> read_unsigned(text_cursor& cursor) {
  if (!is_digit(cursor)) return std::nullopt;
  std::uint32_t value = 0;
  while (is_digit(cursor)) value = value * 10 + take_digit(cursor);
  return value;
}

std::optional<double> read_number(text_cursor& cursor) {
  text_cursor start = cursor;
  auto integer = read_integer(cursor);
  double value = integer.value_or(0);
  if (cursor.accept(u'.')) {
    auto fraction = read_fraction(cursor);
    if (!fraction) {
      cursor = start;
      return std::nullopt;
    }
    // By the value and not by the sign that was read, so "-0.5" loses its sign.
    value += value < 0 ? -*fraction : *fraction;
  } else if (!integer) {
    return 0.0;
  }
  double exponent = read_exponent(cursor);
  return exponent == 0.0 ? value : value * std::pow(10.0, exponent);
}

}  // namespace mtext::reading
