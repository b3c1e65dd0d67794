#pragma once

#include <string_view>
#include <unordered_map>

#include "od/fonts/OdFont.h"

/// A Hershey font from a `.jhf` file: a line of letters for each character, in the order of ASCII from the
/// blank. Capitals are 21 units high.
class OdJhfFont : public OdFont {
 public:
  /// Throws `OdError(eInvalidFile)` with a sentence that begins with `name` when the text is no such font.
  OdJhfFont(std::string_view text, std::u16string name);

  std::u16string name() const override { return m_name; }
  bool isShapeFont() const override { return true; }
  double nominalHeight() const override { return 21; }
  double descender() const override { return 7; }
  double linePitch() const override { return 35; }
  double internalLeading() const override { return 0; }
  const OdFontGlyph* glyph(char32_t character, bool vertical = false) const override;
  const OdFontGlyph* missingGlyph() const override { return glyph(U'?'); }

 private:
  void lowerPunctuation();

  std::u16string m_name;
  std::unordered_map<char32_t, OdFontGlyph> m_glyphs;
};
