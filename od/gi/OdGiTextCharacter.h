#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// What a byte of a text means where its drawing does not say.
inline constexpr int kOdUsualCodePage = 1252;

/// One character to be drawn, and the lines that run along with it.
struct OdGiTextCharacter {
  char32_t character = 0;
  std::size_t first = 0;  ///< first of the UTF-16 units that it was read from
  std::size_t last = 0;   ///< behind the last of them
  bool underlined = false;
  bool overlined = false;
  bool struckThrough = false;
};

/// The characters of a single-line text. A surrogate pair is one of them; half a pair stays what it is.
///
/// Unless `raw`, these are read, letters in either case: `%%d` degree, `%%p` plus-minus, `%%c` diameter,
/// `%%%` a percent sign, `%%u` `%%o` `%%k` turn underline, overline and strike-through on and off, `%%nnn`
/// with three digits the character of that byte in `codePage`, `\U+XXXX` a UTF-16 unit, and `\M+nXXXX` two
/// bytes in one of five code pages. A sequence of another form is text like any other.
std::vector<OdGiTextCharacter> odReadTextCharacters(std::u16string_view text, bool raw, int codePage);

/// The characters that a single-line text shows, without the switches of its lines, in UTF-16.
std::u16string odShownCharacters(std::u16string_view text);
