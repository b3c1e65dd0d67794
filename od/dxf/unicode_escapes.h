#pragma once

#include <string>
#include <string_view>

namespace dxf {

/// `text` with its escapes replaced by the characters they stand for:
/// - `\U+XXXX`, four hexadecimal digits in either case: a UTF-16 unit. Two that follow each other may form a
///   surrogate pair; half a pair stays an escape.
/// - `\U+000XXXXX`, eight digits: a character beyond U+FFFF.
/// - `\M+nXXXX`: a double-byte character of code page 932, 950, 949, 1361 or 936 for n = 1 to 5.
/// For those who draw or edit single-line texts. What is malformed stays as it is.
std::u16string decode_unicode_escapes(std::u16string_view text);

/// Each unit of `units` as `\U+XXXX` with digits in upper case.
std::u16string unicode_escapes(std::u16string_view units);

}  // namespace dxf
