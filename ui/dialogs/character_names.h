#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dialogs {

/// A character that every reader knows and that leaves ink: neither a blank nor a control code, and none
/// that somebody made up for himself.
bool is_visible(char32_t character);

/// The character's number and its name in the standard: "U+00B0 DEGREE SIGN".
std::u16string character_label(char32_t character);

/// The visible characters that a text looks for, in the order of their numbers: the character itself if it
/// is one, that of a number such as "U+00B0", and those whose names have all words of the text, each at the
/// beginning of a word and in any case. At most `kMostFound`; none for a text of blanks.
std::vector<char32_t> find_characters(std::u16string_view text);

/// What finds more than this was no search.
inline constexpr std::size_t kMostFound = 2000;

/// One character as UTF-16: one or two units.
std::u16string text_of(char32_t character);

}  // namespace dialogs
