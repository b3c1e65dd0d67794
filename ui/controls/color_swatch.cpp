#include "ui/controls/color_swatch.h"

namespace controls {

color_swatch swatch_of(color_code code, color_code layer) {
  const color_code shown = code == kByLayerCode ? layer : code;
  if (shown == kNoColor) return {};
  return {.rgb = color_of(shown).trueColor(), .half_black = shown == index_code(7)};
}

}  // namespace controls
