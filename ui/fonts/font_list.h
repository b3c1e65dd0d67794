#pragma once

#include <string>
#include <vector>

#include "mtext/format_string.h"
#include "ui/controls/font_word.h"

class OdFontLibrary;

namespace fonts {

/// One font that a text may use.
struct font_row {
  std::u16string name;    ///< a typeface's family name, or the file name of a shape font
  font_word word = 0;     ///< kind, pitch and character set
  bool installed = true;  ///< false: something stands in for it on this machine

  friend bool operator==(const font_row&, const font_row&) = default;  ///< field by field
};

/// The fonts of the machine and of the library's folders: shape fonts by folder and file name, then typefaces
/// by name.
std::vector<font_row> font_rows(const OdFontLibrary& library);

/// The row of the font that a text uses, for a list that does not have it. The font of `format` has to be
/// set.
font_row row_of(const mtext::format::string_partial& format, const OdFontLibrary& library);

/// Font, kind, pitch and character set of a row, as a change of a text's format.
mtext::format::string_partial format_of(const font_row& row);

}  // namespace fonts
