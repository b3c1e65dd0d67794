#pragma once

#include <cstdint>

/// The colours of the indices 1 to 255 of a drawing: a table of fixed values that all programs share.

/// Red, green and blue as 0xRRGGBB of `index`, which has to be 1 to 255; other values give white.
std::uint32_t odPaletteColor(int index);

/// The index, 1 to 255, whose colour is nearest to 0xRRGGBB (least sum of squared differences; the lower
/// index of equals).
int odNearestPaletteIndex(std::uint32_t rgb);
