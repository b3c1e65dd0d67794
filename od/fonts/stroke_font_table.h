#pragma once

#include <string_view>
#include <vector>

/// File names of the stroke fonts that can stand in for a shape font, best first; never empty, since a plain
/// one stands in for every font that the table does not know. `stem` is the shape font's name without path
/// and extension; case does not matter.
std::vector<std::u16string_view> odStrokeFontsFor(std::u16string_view stem);

/// The same for a big font. Empty for a big font whose characters no stroke font has.
std::vector<std::u16string_view> odStrokeFontsForBigfont(std::u16string_view stem);

/// Stroke fonts with many characters, which are looked through for one that a shape font lacks.
std::vector<std::u16string_view> odWideStrokeFonts();

/// The code page in which a big font numbers its characters, 0 when the table does not know the font.
int odCodePageOfBigfont(std::u16string_view stem);
