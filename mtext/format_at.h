#pragma once

#include "mtext/geom_multitext.h"
#include "od/base/export.h"

/// Which format a place of the text has: for the toolbar to show and for typed characters to take. The labels
/// of lists are no text here. `base` is the default format of the whole text. All throw
/// `std::invalid_argument` for places outside the text, as `verify_mark` and `verify_elem` of
/// `geom_multitext` do.
namespace mtext::format {

/// What all characters under `at` have in common; for a caret, the format of the character before it.
SCRIBE_EXPORT string_partial current_format(const geom_multitext& text, const string& base,
                                            const marks::mark& at);

/// What all paragraphs that `at` touches have in common; the tabs are those of the last one.
SCRIBE_EXPORT paragraph_partial current_paragraph_format(const geom_multitext& text, const marks::mark& at);

/// The format of a character that is typed over `at`: that of its first character, or for a caret that of the
/// character before it.
SCRIBE_EXPORT string insertion_format(const geom_multitext& text, const string& base, const marks::mark& at);
SCRIBE_EXPORT string insertion_format(const geom_multitext& text, const string& base, std::size_t at);

}  // namespace mtext::format
