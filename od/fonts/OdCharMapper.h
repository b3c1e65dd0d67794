#pragma once

#include <string>
#include <string_view>

/// Between characters and the code pages of Windows, which are named by their numbers (1252, 932, ...).
struct OdCharMapper {
  /// The code page that goes with a Windows charset number (0 to 255, as in a font descriptor); 1252 for
  /// charsets that leave it open.
  static int getCodepageByCharset(unsigned short charset);

  /// The bytes of a character, one or two; empty where the code page lacks it or is not known. Code page 0 is
  /// taken as 1252.
  static std::string toBytes(char32_t character, int codePage);

  /// The character of one or two bytes; 0 where they mean none.
  static char32_t toUnicode(std::string_view bytes, int codePage);
};
