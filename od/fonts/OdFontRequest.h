#pragma once

#include <compare>
#include <string>

/// What a text style asks a font library for.
struct OdFontRequest {
  std::u16string typeface{};  ///< family name; empty to go by the file
  std::u16string file{};      ///< font file with or without path and extension; a big font may follow a comma
  std::u16string bigFontFile{};  ///< shape font for characters of two bytes; empty for none
  bool bold = false;
  bool italic = false;
  int charset = 0;   ///< of Windows; 2 is symbols
  int codePage = 0;  ///< Windows code page that gives characters their numbers in old shape fonts; 0 for 1252

  friend auto operator<=>(const OdFontRequest&, const OdFontRequest&) = default;
};
