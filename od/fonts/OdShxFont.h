#pragma once

#include <memory>
#include <unordered_map>

#include "od/fonts/OdFont.h"
#include "od/fonts/ShxFile.h"

/// A font of compiled shapes. Characters find their shapes by Unicode in a unifont, in older fonts by their
/// byte in a code page, in a big font by their two bytes.
class OdShxFont : public OdFont {
 public:
  /// `primary` is the font that a big font's shapes may borrow from; null for none. Throws
  /// `OdError(eInvalidFile)` when the file is one of symbols and not a font.
  OdShxFont(ShxFile file, std::u16string name, int codePage, std::shared_ptr<const OdFont> primary = nullptr);

  std::u16string name() const override { return m_name; }
  bool isShapeFont() const override { return true; }
  double nominalHeight() const override { return m_height; }
  double descender() const override { return m_file.below(); }
  /// The way of the font's line feed, or five thirds of the height where it has none.
  double linePitch() const override { return m_pitch; }
  double internalLeading() const override { return 0; }
  bool hasVerticalMode() const override { return m_file.hasVerticalMode(); }
  const OdFontGlyph* glyph(char32_t character, bool vertical = false) const override;
  /// The question mark.
  const OdFontGlyph* missingGlyph() const override { return glyph(U'?'); }

  const ShxFile& file() const { return m_file; }

 private:
  unsigned numberOf(char32_t character) const;
  unsigned numberInBigfont(char32_t character) const;
  unsigned firstPresent(std::initializer_list<unsigned> numbers) const;
  OdFontGlyph run(unsigned number, bool vertical) const;
  OdFontGlyph spaceOfOthers(bool vertical) const;
  const OdFontGlyph* borrowed(unsigned number) const;
  double measuredHeight() const;

  ShxFile m_file;
  std::u16string m_name;
  int m_codePage;
  std::shared_ptr<const OdFont> m_primary;
  double m_height = 1;
  double m_pitch = 1;
  mutable std::unordered_map<unsigned, OdFontGlyph> m_glyphs;  ///< by number, vertical ones above 0x10000
  mutable std::unordered_map<unsigned, OdFontGlyph>
      m_borrowed;  ///< of the primary font, in this font's units
};
