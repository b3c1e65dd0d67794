#include "commands/letter_case/letter_case.h"

#include <unicode/uchar.h>

#include <string>

namespace {

char16_t upper(char16_t character) { return static_cast<char16_t>(u_toupper(character)); }
char16_t lower(char16_t character) { return static_cast<char16_t>(u_tolower(character)); }

/// The first letter of what is open in upper case, the letters behind it in lower case.
char16_t opening(char16_t letter, case_state& state) {
  const bool opens = state.next_upper;
  state.next_upper = false;
  return opens ? upper(letter) : lower(letter);
}

bool ends_sentence(char16_t character) { return character == u'!' || character == u'.' || character == u'?'; }

char16_t toggled(char16_t character) {
  if (u_islower(character)) return upper(character);
  return u_isupper(character) ? lower(character) : character;
}

}  // namespace

char16_t in_case(char16_t character, case_state& state) {
  const bool letter = u_isalpha(character);
  switch (state.mode) {
    case case_mode::lower:
      return lower(character);
    case case_mode::upper:
      return upper(character);
    case case_mode::toggle:
      return toggled(character);
    case case_mode::sentence:
    case case_mode::title:
      break;
  }
  if (letter) return opening(character, state);
  // A digit or an apostrophe begins a new word, but no new sentence.
  if (state.mode == case_mode::title || ends_sentence(character)) state.next_upper = true;
  return character;
}

std::u16string in_case(std::u16string_view text, case_state& state) {
  std::u16string changed;
  changed.reserve(text.size());
  for (const char16_t character : text) changed += in_case(character, state);
  return changed;
}
