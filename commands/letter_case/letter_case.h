#pragma once

#include <string_view>

/// How the command TCase changes letters.
enum class case_mode {
  sentence = 0,  ///< the first letter of a sentence in upper case, all others in lower case
  lower = 1,
  upper = 2,
  title = 3,  ///< the first letter behind whatever is no letter in upper case, all others in lower case
  toggle = 4,
};

/// How far a walk over one text has come. Its letters are mapped one by one, in reading order.
struct case_state {
  explicit case_state(case_mode chosen) : mode(chosen) {}

  bool next_upper = true;  ///< the next letter opens a sentence or word
  case_mode mode;
};

/// The character that takes the place of `character`; one UTF-16 unit becomes one unit, so that no text
/// changes its length.
char16_t in_case(char16_t character, case_state& state);

/// The same over a whole text.
std::u16string in_case(std::u16string_view text, case_state& state);
