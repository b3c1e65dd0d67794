#pragma once

#include <string>

/// One font or character that was wanted and is drawn with something else.
struct OdFontSubstitution {
  enum Kind { kTypeface, kShapeFont, kBigFont, kCharacter };

  Kind kind = kTypeface;
  std::u16string wanted{};  ///< font name; for a character the font that lacks it
  std::u16string used{};    ///< name of what stands in; empty when nothing does
  char32_t character = 0;   ///< of kind `kCharacter`: the first character found missing
  std::string reason{};     ///< a sentence when a file is there and cannot be used, else empty

  friend bool operator==(const OdFontSubstitution&, const OdFontSubstitution&) = default;
};
