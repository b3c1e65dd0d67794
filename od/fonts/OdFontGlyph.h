#pragma once

#include <vector>

#include "od/ge/OdGePoint2d.h"

/// The shape of one character in font units: Y up, the origin on the baseline at the pen's start. Curves are
/// flattened already.
struct OdFontGlyph {
  /// Closed contours, without the first point again, where `filled`; else lines of a pen, open, at least one
  /// point each.
  std::vector<std::vector<OdGePoint2d>> contours{};
  /// From the start of this character to the start of the next.
  OdGeVector2d advance{};
  /// Contours are areas, filled by the non-zero winding rule.
  bool filled = false;
};
