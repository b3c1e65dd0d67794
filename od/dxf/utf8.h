#pragma once

#include <string>
#include <string_view>

namespace dxf {

/// Appends the characters of `bytes` to `text`; each byte of an ill-formed sequence is appended as 0xDC00 +
/// b.
void decode_utf8(std::string_view bytes, std::u16string& text);

/// Appends a code point that is no surrogate to `bytes`.
void encode_utf8(char32_t character, std::string& bytes);

}  // namespace dxf
