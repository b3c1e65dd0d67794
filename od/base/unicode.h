#pragma once

#include <string>
#include <string_view>

/// UTF-8 to UTF-16. Ill-formed bytes become U+FFFD: this is for program texts and the command line, never for
/// drawings.
std::u16string odToUtf16(std::string_view utf8);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD.
std::string odToUtf8(std::u16string_view utf16);

/// A copy with the letters A to Z in lower case. Names in a drawing compare without case in this way.
std::u16string odLowerAscii(std::u16string_view text);

/// True when both texts are equal but for the case of the letters A to Z.
bool odEqualNoCase(std::u16string_view a, std::u16string_view b);
