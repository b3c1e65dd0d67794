#pragma once

#include <cstddef>
#include <string_view>

/// A place in a text with format codes. Each `skip...` passes what readers of a code take there, and tells
/// whether they take it; if not, the place is where it was.
struct OdCodeCursor {
  std::u16string_view text;
  std::size_t at;  ///< at most the text's size

  bool ended() const { return at == text.size(); }
  /// Passes `unit` if it stands here, and tells whether it did.
  bool accept(char16_t unit);

  /// Digits.
  bool skipUnsigned();
  /// A number with a sign, a fraction and an exponent as they come. None at all is one, too; a dot without
  /// digits behind it is none.
  bool skipNumber();
  /// A number, the letter that makes it a factor, and the end of the code where they stand.
  bool skipFactorOrValue();
  /// Digits, and the end of the code where it stands.
  bool skipCount();
  /// A name and options, up to the end of the code or of the text.
  bool skipFont();
  /// The items of a paragraph code, up to its end or that of the text. Where the text ends behind a letter
  /// that asks for another one, that letter says nothing: its place is given, else the text's size.
  std::size_t skipParagraphItems();

 private:
  bool skipInteger();
  std::size_t skipTabs();
};
