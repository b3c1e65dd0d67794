#include "od/fonts/OdComposedFont.h"

#include <array>

#include "od/fonts/GlyphSubstitutes.h"
#include "od/fonts/glyph_geometry.h"

namespace {

constexpr char32_t kVerticalKey = 0x80000000;

/// Characters that say something to a layout and show nothing.
bool isInvisible(char32_t c) {
  return c < 0x20 || (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) || c == 0x2060 ||
         c == 0xFEFF;
}

bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// Characters that look the same, so that one does for the other without being a substitution.
struct Twin {
  char32_t wanted, same;
};
constexpr std::array<Twin, 8> kTwins{{{0xA0, U' '},
                                      {0xAD, U'-'},
                                      {0x2010, U'-'},
                                      {0x2011, U'-'},
                                      {0x2205, 0x2300},
                                      {0x2205, 0xD8},
                                      {0x2300, 0x2205},
                                      {0x2300, 0xD8}}};

}  // namespace

const OdFontGlyph* OdComposedFont::glyph(char32_t character, bool vertical) const {
  if (isInvisible(character)) return nullptr;
  vertical = vertical && hasVerticalMode();
  auto [place, isNew] = m_found.try_emplace(character | (vertical ? kVerticalKey : 0));
  if (isNew) place->second = find(character, vertical);
  return place->second;
}

const OdFontGlyph* OdComposedFont::find(char32_t character, bool vertical) const {
  if (m_parts.big && character >= 0x80 && m_parts.big->glyph(character)) {
    return fitted(*m_parts.big, character, vertical);
  }
  if (const OdFontGlyph* own = ownGlyph(character, vertical)) return own;
  if (m_parts.bigSubstitute && m_parts.bigSubstitute->glyph(character)) {
    return fitted(*m_parts.bigSubstitute, character, vertical);
  }
  return substitute(character, vertical);
}

const OdFontGlyph* OdComposedFont::ownGlyph(char32_t character, bool vertical) const {
  if (const OdFontGlyph* own = m_parts.primary->glyph(character, vertical)) return own;
  for (const Twin& twin : kTwins) {
    if (twin.wanted != character) continue;
    if (const OdFontGlyph* same = m_parts.primary->glyph(twin.same, vertical)) return same;
  }
  return nullptr;
}

const OdFontGlyph* OdComposedFont::substitute(char32_t character, bool vertical) const {
  std::shared_ptr<const OdFont> font;
  if (!isSurrogate(character)) {
    font = m_parts.substitutes->find({character, isShapeFont(), m_parts.bold, m_parts.italic});
  }
  m_parts.substitutes->notes().add({.kind = OdFontSubstitution::kCharacter,
                                    .wanted = name(),
                                    .used = font ? font->name() : std::u16string(),
                                    .character = character,
                                    .reason = {}});
  return font ? fitted(*font, character, vertical) : missingGlyph();
}

/// A glyph of another font in the units of the primary one, made to hang where the line runs downwards.
const OdFontGlyph* OdComposedFont::fitted(const OdFont& font, char32_t character, bool vertical) const {
  bool alreadyHangs = vertical && font.hasVerticalMode();
  OdFontGlyph glyph =
      odScaledGlyph(*font.glyph(character, alreadyHangs), nominalHeight() / font.nominalHeight());
  if (vertical && !alreadyHangs) glyph = odHangingGlyph(glyph, nominalHeight(), linePitch());
  return &m_fitted.insert_or_assign(character | (vertical ? kVerticalKey : 0), std::move(glyph))
              .first->second;
}
