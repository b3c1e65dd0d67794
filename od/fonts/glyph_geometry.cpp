#include "od/fonts/glyph_geometry.h"

#include <algorithm>

OdGlyphBox odGlyphBox(const OdFontGlyph& glyph) {
  OdGlyphBox box;
  for (const auto& contour : glyph.contours) {
    for (const OdGePoint2d& p : contour) {
      if (box.isEmpty) box = {p.x, p.y, p.x, p.y, false};
      box.left = std::min(box.left, p.x);
      box.right = std::max(box.right, p.x);
      box.bottom = std::min(box.bottom, p.y);
      box.top = std::max(box.top, p.y);
    }
  }
  return box;
}

OdFontGlyph odScaledGlyph(const OdFontGlyph& glyph, double factor) {
  OdFontGlyph scaled = glyph;
  scaled.advance = glyph.advance * factor;
  for (auto& contour : scaled.contours) {
    for (OdGePoint2d& p : contour) p = {p.x * factor, p.y * factor};
  }
  return scaled;
}

OdFontGlyph odHangingGlyph(const OdFontGlyph& glyph, double nominalHeight, double pitch) {
  OdFontGlyph hanging = glyph;
  OdGeVector2d shift{-glyph.advance.x / 2, -nominalHeight};
  for (auto& contour : hanging.contours) {
    for (OdGePoint2d& p : contour) p = p + shift;
  }
  hanging.advance = {0, -pitch};
  return hanging;
}
