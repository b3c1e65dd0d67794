#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The text of one column, taken apart so that it can stand in one text with others. All its codes are ended.
/// Braces that close nothing, which nobody sees, are left out. What readers take for letters because the text
/// ends is written so that they do when it goes on.
struct OdColumnText {
  /// Those of the first paragraph, one after the other; they hold for all of it wherever they stand.
  std::u16string paragraphCodes;
  std::u16string opening;  ///< the first paragraph with its end, without its paragraph codes
  std::u16string rest;     ///< the further ones
  std::size_t openBraces = 0;
  bool hasBreak = false;           ///< the first paragraph ends in this text
  bool changesFormat = false;      ///< of characters, outside all braces
  bool formatsParagraphs = false;  ///< any of them
  bool endsParagraph = false;      ///< nothing visible stands behind the last paragraph end
  bool endsInPercent = false;      ///< the last letter is a percent sign, which could begin something
};

/// Reads the codes of a column. `endsParagraph` tells whether a paragraph ends before it.
OdColumnText odReadColumnText(std::u16string_view text, bool endsParagraph);
