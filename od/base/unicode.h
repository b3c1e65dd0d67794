#pragma once

#include <string>
#include <string_view>

#include "od/base/export.h"

/// UTF-8 to UTF-16. Ill-formed bytes become U+FFFD: this is for program texts and the command line, never for
/// drawings.
SCRIBE_EXPORT std::u16string odToUtf16(std::string_view utf8);

/// One character in UTF-16: one unit, or a surrogate pair.
SCRIBE_EXPORT std::u16string odToUtf16(char32_t character);

/// UTF-16 to UTF-8. A lone surrogate becomes U+FFFD.
SCRIBE_EXPORT std::string odToUtf8(std::u16string_view utf16);

/// A copy with the letters A to Z in lower case. Names in a drawing compare without case in this way.
SCRIBE_EXPORT std::u16string odLowerAscii(std::u16string_view text);

/// True when both texts are equal but for the case of the letters A to Z.
SCRIBE_EXPORT bool odEqualNoCase(std::u16string_view a, std::u16string_view b);
