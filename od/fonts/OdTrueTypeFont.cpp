#include "od/fonts/OdTrueTypeFont.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H
#include FT_TRUETYPE_TABLES_H

#include <algorithm>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/fonts/glyph_geometry.h"
#include "od/fonts/outline_contours.h"

namespace {

/// The slant that is given to upright faces, as a tangent; about twelve degrees.
constexpr double kSlant = 0.2126;
/// Strokes of a face that is made bold grow by this share of the em.
constexpr int kBoldShareOfEm = 24;
/// Symbol faces number their signs from here on.
constexpr char32_t kSymbolPage = 0xF000;
/// The height of capitals in a face that has none to measure.
constexpr double kUsualCapital = 0.7;

}  // namespace

OdFreeType odStartFreeType() {
  FT_Library library = nullptr;
  if (FT_Init_FreeType(&library) != 0) throw OdError("The font renderer does not start");
  return OdFreeType(library, [](FT_Library ended) { FT_Done_FreeType(ended); });
}

void OdTrueTypeFont::CloseFace::operator()(FT_FaceRec_* face) const { FT_Done_Face(face); }

OdTrueTypeFont::OdTrueTypeFont(OdFreeType freeType, const OdTypefaceFile& file)
    : m_freeType(std::move(freeType)), m_embolden(file.embolden), m_slant(file.slant) {
  FT_Face face = nullptr;
  if (FT_New_Face(m_freeType.get(), file.path.c_str(), file.index, &face) != 0) {
    throw OdError(eInvalidFile, "The font file " + file.path + " cannot be used");
  }
  m_face.reset(face);
  if (!FT_IS_SCALABLE(face) || face->units_per_EM == 0) {
    throw OdError(eInvalidFile, "The font file " + file.path + " has no outlines");
  }
  m_name = odToUtf16(face->family_name ? face->family_name : "");
  if (FT_Select_Charmap(face, FT_ENCODING_UNICODE) != 0) FT_Select_Charmap(face, FT_ENCODING_MS_SYMBOL);
  m_capitalHeight = measureCapital();
}

double OdTrueTypeFont::measureCapital() const {
  const auto* table = static_cast<const TT_OS2*>(FT_Get_Sfnt_Table(m_face.get(), FT_SFNT_OS2));
  if (table && table->version >= 2 && table->version != 0xFFFF && table->sCapHeight > 0) {
    return table->sCapHeight;
  }
  if (unsigned index = glyphIndex(U'H')) {
    double height = odGlyphBox(*glyphAt(index)).top;
    if (height > 0) return height;
  }
  return kUsualCapital * m_face->units_per_EM;
}

double OdTrueTypeFont::descender() const { return m_face->descender; }

double OdTrueTypeFont::linePitch() const {
  return std::max<double>(m_face->height, m_face->ascender - m_face->descender);
}

double OdTrueTypeFont::internalLeading() const { return m_face->ascender - m_capitalHeight; }

unsigned OdTrueTypeFont::glyphIndex(char32_t character) const {
  unsigned index = FT_Get_Char_Index(m_face.get(), character);
  return index == 0 && character < 0x100 ? FT_Get_Char_Index(m_face.get(), kSymbolPage + character) : index;
}

const OdFontGlyph* OdTrueTypeFont::glyph(char32_t character, bool) const {
  unsigned index = glyphIndex(character);
  return index ? glyphAt(index) : nullptr;
}

const OdFontGlyph* OdTrueTypeFont::glyphAt(unsigned index) const {
  auto [place, isNew] = m_glyphs.try_emplace(index);
  if (isNew) place->second = load(index);
  return &place->second;
}

OdFontGlyph OdTrueTypeFont::load(unsigned index) const {
  OdFontGlyph glyph;
  glyph.filled = true;
  if (FT_Load_Glyph(m_face.get(), index, FT_LOAD_NO_SCALE) != 0) return glyph;
  FT_GlyphSlot slot = m_face->glyph;
  glyph.advance = {static_cast<double>(slot->advance.x), 0};
  if (slot->format != FT_GLYPH_FORMAT_OUTLINE) return glyph;
  if (m_embolden) {
    FT_Pos strength = m_face->units_per_EM / kBoldShareOfEm;
    FT_Outline_Embolden(&slot->outline, strength);
    // Columns of a face with one width have to stay in line.
    if (!FT_IS_FIXED_WIDTH(m_face.get()) && glyph.advance.x > 0) {
      glyph.advance.x += static_cast<double>(strength);
    }
  }
  glyph.contours = odOutlineContours(slot->outline, m_face->units_per_EM * kGlyphTolerance);
  if (!m_slant) return glyph;
  for (auto& contour : glyph.contours) {
    for (OdGePoint2d& p : contour) p.x += kSlant * p.y;
  }
  return glyph;
}
