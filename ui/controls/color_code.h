#pragma once

#include <cstdint>
#include <string>

#include "mtext/text_color.h"
#include "od/cm/OdCmEntityColor.h"

/// One number for a colour of any kind. Top byte 1: by index in the low 24 bits, 0 by block, 256 by layer.
/// Top byte 2: red, green, blue. 0 is no colour.
using color_code = std::uint32_t;

namespace controls {

constexpr color_code kNoColor = 0;
constexpr color_code kByBlockCode = 0x1000000;
constexpr color_code kByLayerCode = 0x1000100;

/// The code of an index 0 to 256.
constexpr color_code index_code(int index) { return kByBlockCode + static_cast<color_code>(index); }

color_code code_of(const OdCmEntityColor& color);
/// The same for the colour of a run of text.
color_code code_of(const mtext::format::text_color& color);

/// The colour that a code stands for; by layer for a code of no kind.
OdCmEntityColor color_of(color_code code);

/// The colour as runs of text keep it.
mtext::format::text_color text_color_of(const OdCmEntityColor& color);

/// What a code is called: the standard colours by their names, other indices by "Color" and the number, true
/// colours by red, green and blue.
std::u16string name_of(color_code code);

}  // namespace controls
