#pragma once

#include <span>
#include <string>
#include <string_view>

/// A text that a user sees, by its number.
struct ResourceString {
  int number;
  const char16_t* text;
};

/// A text and what it is called in the user's language.
struct TranslatedText {
  const char16_t* text;
  const char16_t* translation;
};

/// `text` in the user's language; the text itself if it has no translation.
std::u16string Supp_Translate(std::u16string_view text);

namespace host {

/// Enters the strings of a module; the table has to live as long as the process. A number that is there
/// already must have the same text: `std::invalid_argument` otherwise.
void register_strings(std::span<const ResourceString> table);

/// The string of a number, translated. Throws `std::invalid_argument` for a number that no table has.
std::u16string resource_string(int number);

/// Replaces the translations by those of `table`; an empty one brings back the texts themselves.
void set_translations(std::span<const TranslatedText> table);

}  // namespace host
