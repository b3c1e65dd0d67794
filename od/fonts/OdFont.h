#pragma once

#include <string>

#include "od/fonts/OdFontGlyph.h"

/// One font in one of its faces, whatever kind of file it comes from. All numbers are in font units; the
/// drawing units of one font unit are the text's height divided by `nominalHeight`.
///
/// Glyphs are worked out when first asked for and kept, so references to them live as long as the font. A
/// font belongs to one thread.
class OdFont {
 public:
  OdFont() = default;
  OdFont(const OdFont&) = delete;
  OdFont& operator=(const OdFont&) = delete;
  virtual ~OdFont() = default;

  /// What the user knows the font by: typeface or file name.
  virtual std::u16string name() const = 0;
  /// True for the fonts of pen strokes, false for typefaces.
  virtual bool isShapeFont() const = 0;

  /// The height of a capital; above 0.
  virtual double nominalHeight() const = 0;
  /// Depth below the baseline as the kind of font reports it: negative for typefaces, positive for shape
  /// fonts.
  virtual double descender() const = 0;
  /// From one baseline to the next.
  virtual double linePitch() const = 0;
  /// What the font keeps free above its capitals.
  virtual double internalLeading() const = 0;

  /// True when the font can run from top to bottom.
  virtual bool hasVerticalMode() const { return false; }

  /// The glyph of a character, or null when the font has none. `vertical` asks for the top-to-bottom form; a
  /// font without that mode gives the other.
  virtual const OdFontGlyph* glyph(char32_t character, bool vertical = false) const = 0;

  /// What the font shows for a character that nothing has; null for nothing.
  virtual const OdFontGlyph* missingGlyph() const { return nullptr; }
};
