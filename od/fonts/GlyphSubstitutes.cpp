#include "od/fonts/GlyphSubstitutes.h"

#include "od/base/OdError.h"
#include "od/fonts/FontLoader.h"
#include "od/fonts/OdFont.h"
#include "od/fonts/TypefaceIndex.h"
#include "od/fonts/stroke_font_table.h"

std::shared_ptr<const OdFont> GlyphSubstitutes::find(const Wish& wish) {
  auto [place, isNew] = m_found.try_emplace(wish);
  if (isNew) place->second = search(wish);
  return place->second;
}

std::shared_ptr<const OdFont> GlyphSubstitutes::search(const Wish& wish) {
  if (wish.strokes) {
    for (std::u16string_view name : odWideStrokeFonts()) {
      auto font = m_loader->strokeFont(name);
      if (font && font->glyph(wish.character)) return font;
    }
  }
  try {
    return amongTypefaces(wish);
  } catch (const OdError&) {
    // A typeface that is listed and cannot be read: the character counts as missing and is noted as such.
    return nullptr;
  }
}

std::shared_ptr<const OdFont> GlyphSubstitutes::amongTypefaces(const Wish& wish) {
  const TypefaceIndex& typefaces = m_loader->typefaces();
  if (auto file = typefaces.findFamily(u"DejaVu Sans", wish.bold, wish.italic)) {
    auto font = m_loader->typeface(*file);
    if (font->glyph(wish.character)) return font;
  }
  auto file = typefaces.findCharacter(wish.character);
  if (!file) return nullptr;
  auto font = m_loader->typeface(*file);
  return font->glyph(wish.character) ? font : nullptr;
}
