#pragma once

#include <cstdint>

/// What a list of fonts keeps with a font's name: 0 for a shape font; for a typeface a bit above the low 16,
/// the lowest bit of its pitch and family as bit 8, and its character set in the low 8 bits.
using font_word = std::uint32_t;

namespace controls {

constexpr font_word kShapeFontWord = 0;

constexpr font_word typeface_word(bool fixed_pitch, std::uint8_t charset) {
  return (fixed_pitch ? 0x10100U : 0x10000U) + charset;
}
constexpr bool is_shape_font(font_word word) { return word < 0x10000U; }
constexpr std::uint32_t pitch_of(font_word word) { return word >> 8 & 1U; }
constexpr std::uint32_t charset_of(font_word word) { return word & 0xFFU; }
/// Number of the icon in front of the name.
constexpr int icon_of(font_word word) { return is_shape_font(word) ? 124 : 125; }

}  // namespace controls
