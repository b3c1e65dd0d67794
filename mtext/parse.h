#pragma once

#include <string>

#include "mtext/fields_map.h"
#include "mtext/multitext.h"
#include "od/base/export.h"

namespace mtext {

/// Reads the format codes between `first` and `last` into `target`, whose content is dropped first.
/// `base` is the format of text outside all codes. A field whose marker is in `fields` gets the evaluated
/// text of that object as its value. Neighbouring parts of equal format stay apart: see `join_equal_parts`.
/// No input is an error: what is not a well-formed code is text. Always true.
SCRIBE_EXPORT bool parse(const char16_t* first, const char16_t* last, const format::string& base,
                         multitext& target, const fields_map& fields);

/// Reads `text` up to its first null character and joins neighbours of equal format.
SCRIBE_EXPORT bool parse(const char16_t* text, const format::string& base, multitext& target,
                         const fields_map& fields);
/// Reads `text` up to its first null character, if it holds one, and joins neighbours of equal format.
SCRIBE_EXPORT bool parse(const std::u16string& text, const format::string& base, multitext& target,
                         const fields_map& fields);

/// Makes one part of neighbouring words, and of neighbouring blanks, that have equal formats.
SCRIBE_EXPORT void join_equal_parts(multitext& text);

}  // namespace mtext
