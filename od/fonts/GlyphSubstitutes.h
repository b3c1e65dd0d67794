#pragma once

#include <map>
#include <memory>

#include "od/fonts/SubstitutionNotes.h"

class FontLoader;
class OdFont;

/// Finds a font that has a character which another font lacks. Shared by all fonts of a library.
class GlyphSubstitutes {
 public:
  GlyphSubstitutes(std::shared_ptr<FontLoader> loader, std::shared_ptr<SubstitutionNotes> notes)
      : m_loader(std::move(loader)), m_notes(std::move(notes)) {}

  struct Wish {
    char32_t character = 0;
    bool strokes = false;  ///< a font of pen strokes is preferred
    bool bold = false;
    bool italic = false;
    friend auto operator<=>(const Wish&, const Wish&) = default;
  };

  /// A font with the character: the wide stroke fonts, for strokes first and for typefaces last; DejaVu Sans;
  /// any installed typeface. Null when there is none.
  std::shared_ptr<const OdFont> find(const Wish& wish);

  SubstitutionNotes& notes() { return *m_notes; }

 private:
  std::shared_ptr<const OdFont> search(const Wish& wish);
  std::shared_ptr<const OdFont> amongStrokes(const Wish& wish);
  std::shared_ptr<const OdFont> amongTypefaces(const Wish& wish);

  std::shared_ptr<FontLoader> m_loader;
  std::shared_ptr<SubstitutionNotes> m_notes;
  std::map<Wish, std::shared_ptr<const OdFont>> m_found;
};
