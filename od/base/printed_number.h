#pragma once

#include <array>
#include <charconv>
#include <string>

/// A number in digits, with a point in every language: `digits` (at most 64) of them behind the point, or
/// significant ones in the general form, which has no zeros at its end.
inline std::u16string odPrintedNumber(double value, std::chars_format form, int digits) {
  std::array<char, 384> text;  // the greatest real has 309 digits in front of the point
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value, form, digits);
  return {text.data(), end.ptr};
}
