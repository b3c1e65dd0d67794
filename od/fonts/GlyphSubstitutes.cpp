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
  auto font = wish.strokes ? amongStrokes(wish) : amongTypefaces(wish);
  if (font) return font;
  return wish.strokes ? amongTypefaces(wish) : amongStrokes(wish);
}

std::shared_ptr<const OdFont> GlyphSubstitutes::amongStrokes(const Wish& wish) {
  for (std::u16string_view name : odWideStrokeFonts()) {
    auto font = m_loader->strokeFont(name);
    if (font && font->glyph(wish.character)) return font;
  }
  return nullptr;
}

std::shared_ptr<const OdFont> GlyphSubstitutes::amongTypefaces(const Wish& wish) {
  const TypefaceIndex& typefaces = m_loader->typefaces();
  std::optional<OdTypefaceFile> files[] = {typefaces.findFamily(u"DejaVu Sans", wish.bold, wish.italic),
                                           typefaces.findCharacter(wish.character)};
  for (const auto& file : files) {
    if (!file) continue;
    try {
      auto font = m_loader->typeface(*file);
      if (font->glyph(wish.character)) return font;
    } catch (const OdError&) {
      // A typeface that is listed and cannot be read is as good as none; what is drawn in the end is noted.
    }
  }
  return nullptr;
}
