#pragma once

#include <cmath>
#include <cstdio>
#include <string>

#include "od/fonts/OdFontGlyph.h"

/// A glyph as a line of text: its polylines parted by bars, then the way of the pen, such as
/// "0,0 2,0 | 3,1 4,4 > 5,0".
inline std::string glyphText(const OdFontGlyph& glyph) {
  auto pair = [](double x, double y) {
    // Rounds to what matters, which also takes the sign off zero.
    char text[64];
    std::snprintf(text, sizeof text, "%g,%g", std::round(x * 1e4) / 1e4 + 0.0,
                  std::round(y * 1e4) / 1e4 + 0.0);
    return std::string(text);
  };
  std::string result;
  for (const auto& contour : glyph.contours) {
    if (!result.empty()) result += "| ";
    for (const OdGePoint2d& p : contour) result += pair(p.x, p.y) + " ";
  }
  return result + "> " + pair(glyph.advance.x, glyph.advance.y);
}
