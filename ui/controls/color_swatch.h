#pragma once

#include "ui/controls/color_code.h"

namespace controls {

/// What stands beside the name of a colour.
struct color_swatch {
  std::uint32_t rgb = 0xFFFFFF;  ///< 0xRRGGBB
  bool half_black = false;       ///< its other half is black: the colour that is drawn against the background

  friend bool operator==(const color_swatch&, const color_swatch&) = default;  ///< field by field
};

/// The swatch of a code; by layer shows the colour `layer`. White for no colour.
color_swatch swatch_of(color_code code, color_code layer);

}  // namespace controls
