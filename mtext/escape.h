#pragma once

#include <string>

#include "od/base/OdString.h"
#include "od/base/export.h"

namespace mtext {

/// Plain text, up to its first null character, as a format-code string. A line feed becomes a paragraph end
/// with `keep_line_feeds` and is dropped without it; carriage returns are dropped always.
/// "%%" is left alone: "%%d" will read as a degree sign.
SCRIBE_EXPORT std::u16string escape_mtext(const char16_t* text, bool keep_line_feeds);

/// The plain text of a format-code string, up to its first null character. Line and paragraph ends become
/// carriage return and line feed; a run of blanks becomes one blank.
SCRIBE_EXPORT std::u16string unformat_mtext(const char16_t* text);

/// `unformat_mtext` for callers that hold `OdString` values.
SCRIBE_EXPORT OdString UnformatMText(const char16_t* text);

}  // namespace mtext
