#include "mtext/write_number.h"

#include <array>
#include <charconv>

namespace mtext::writing {

namespace {

/// Room for any number of at most six digits, its sign, dot and exponent.
using digits = std::array<char, 32>;

}  // namespace

void append_number(std::u16string& out, double value, int precision) {
  digits text;
  auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, precision);
  out.append(text.data(), end.ptr);
}

void append_integer(std::u16string& out, std::uint32_t value) {
  digits text;
  auto end = std::to_chars(text.data(), text.data() + text.size(), value);
  out.append(text.data(), end.ptr);
}

}  // namespace mtext::writing
