#pragma once

#include <string_view>
#include <unordered_map>

#include "od/fonts/OdFont.h"

/// A stroke font from a `.lff` file: UTF-8 text with a block of polylines for each character. Capitals are 9
/// units high. Characters are read when they are first asked for.
class OdLffFont : public OdFont {
 public:
  /// Throws `OdError(eInvalidFile)` with a sentence that begins with `name` when the text holds no character.
  OdLffFont(std::string text, std::u16string name);

  std::u16string name() const override { return m_name; }
  bool isShapeFont() const override { return true; }
  double nominalHeight() const override { return 9; }
  double descender() const override { return 3; }
  double linePitch() const override { return 15 * m_lineSpacingFactor; }
  double internalLeading() const override { return 0; }
  const OdFontGlyph* glyph(char32_t character, bool vertical = false) const override;
  /// U+FFFD, or a diamond in a font that lacks it or draws it so small that it could be taken for a full
  /// stop.
  const OdFontGlyph* missingGlyph() const override;

 private:
  bool has(char32_t character) const;
  bool isPlaceholder(char32_t character) const;
  std::string_view block(std::size_t place) const;
  void readKey(std::string_view line);
  OdFontGlyph read(char32_t character) const;
  void readLines(char32_t character, OdFontGlyph& glyph, std::vector<char32_t>& included) const;

  std::string m_text;
  std::u16string m_name;
  double m_letterSpacing = 3;
  double m_wordSpacing = 6.75;
  double m_lineSpacingFactor = 1;
  std::unordered_map<char32_t, std::size_t> m_places;  ///< where the lines of a character begin
  mutable std::unordered_map<char32_t, OdFontGlyph> m_glyphs;
};
