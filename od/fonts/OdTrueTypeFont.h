#pragma once

#include <memory>
#include <unordered_map>

#include "od/fonts/OdFont.h"

struct FT_FaceRec_;
struct FT_LibraryRec_;

/// The FreeType library, shared by all faces that it opened.
using OdFreeType = std::shared_ptr<FT_LibraryRec_>;
/// Throws `OdError` when FreeType does not start.
OdFreeType odStartFreeType();

/// Where a face lies, and what it lacks and has to be given to it.
struct OdTypefaceFile {
  std::string path{};
  long index = 0;  ///< of the face in a collection
  bool embolden = false;
  bool slant = false;

  friend auto operator<=>(const OdTypefaceFile&, const OdTypefaceFile&) = default;
};

/// A typeface: outlines from a TrueType, OpenType or Type 1 file in font units, not hinted, so that its
/// numbers are the same on every machine and at every size.
class OdTrueTypeFont : public OdFont {
 public:
  /// Throws `OdError(eInvalidFile)` with a sentence that names the file when FreeType cannot use it or it has
  /// no outlines.
  OdTrueTypeFont(OdFreeType freeType, const OdTypefaceFile& file);

  /// The family name.
  std::u16string name() const override { return m_name; }
  bool isShapeFont() const override { return false; }
  /// The height of a capital.
  double nominalHeight() const override { return m_capitalHeight; }
  double descender() const override;
  double linePitch() const override;
  /// The ascender less the height of a capital.
  double internalLeading() const override;
  const OdFontGlyph* glyph(char32_t character, bool vertical = false) const override;
  const OdFontGlyph* missingGlyph() const override { return glyphAt(0); }

 private:
  struct CloseFace {
    void operator()(FT_FaceRec_* face) const;
  };

  double measureCapital() const;
  unsigned glyphIndex(char32_t character) const;
  const OdFontGlyph* glyphAt(unsigned index) const;
  OdFontGlyph load(unsigned index) const;

  OdFreeType m_freeType;
  std::unique_ptr<FT_FaceRec_, CloseFace> m_face;
  std::u16string m_name;
  bool m_embolden, m_slant;
  double m_capitalHeight = 1;
  mutable std::unordered_map<unsigned, OdFontGlyph> m_glyphs;  ///< by index in the face
};
