#pragma once

#include <memory>
#include <unordered_map>

#include "od/fonts/OdFont.h"

class GlyphSubstitutes;

/// A font as a text style uses it: a primary font, for shape fonts perhaps a big font beside it, and for each
/// character that both lack a glyph of another font, brought to the size of the primary one.
class OdComposedFont : public OdFont {
 public:
  struct Parts {
    std::shared_ptr<const OdFont> primary{};
    std::shared_ptr<const OdFont> big{};            ///< asked first for all but ASCII; null for none
    std::shared_ptr<const OdFont> bigSubstitute{};  ///< asked after the primary one; null for none
    std::shared_ptr<GlyphSubstitutes> substitutes{};
    bool bold = false;
    bool italic = false;
  };

  explicit OdComposedFont(Parts parts) : m_parts(std::move(parts)) {}

  std::u16string name() const override { return m_parts.primary->name(); }
  bool isShapeFont() const override { return m_parts.primary->isShapeFont(); }
  double nominalHeight() const override { return m_parts.primary->nominalHeight(); }
  double descender() const override { return m_parts.primary->descender(); }
  double linePitch() const override { return m_parts.primary->linePitch(); }
  double internalLeading() const override { return m_parts.primary->internalLeading(); }
  bool hasVerticalMode() const override { return m_parts.primary->hasVerticalMode(); }
  /// Null only for control and format characters, and where there is nothing to show for a missing one.
  const OdFontGlyph* glyph(char32_t character, bool vertical = false) const override;
  const OdFontGlyph* missingGlyph() const override { return m_parts.primary->missingGlyph(); }

 private:
  const OdFontGlyph* find(char32_t character, bool vertical) const;
  const OdFontGlyph* ownGlyph(char32_t character, bool vertical) const;
  const OdFontGlyph* substitute(char32_t character, bool vertical) const;
  const OdFontGlyph* fitted(const OdFont& font, char32_t character, bool vertical) const;

  Parts m_parts;
  mutable std::unordered_map<char32_t, const OdFontGlyph*> m_found;  ///< vertical ones with the top bit set
  mutable std::unordered_map<char32_t, OdFontGlyph> m_fitted;        ///< likewise
};
