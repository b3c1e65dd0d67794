#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "mtext/letters_dictionary.h"
#include "mtext/mark.h"
#include "od/base/export.h"

namespace mtext {

/// The character that stands for a bullet in a label.
inline constexpr char16_t bullet_character = u'\u00b7';

/// Reads one level of a list label from the front of `text`: a bullet, letters with a full stop, or a number
/// with a full stop, in that order. Nothing, and no move, if it is none of them.
/// A number may have blanks and a sign before it, and -1 is the greatest one: labels have always been read
/// so.
SCRIBE_EXPORT std::optional<marks::index> read_label_index(std::u16string_view& text,
                                                           const marks::letters_dictionary& dictionary);

/// The levels of a label, without the tab behind it, from the outermost to the innermost. Nothing if the
/// whole of `text` is no label.
SCRIBE_EXPORT std::optional<std::vector<marks::index>> read_label(
    std::u16string_view text, const marks::letters_dictionary& dictionary);

}  // namespace mtext
