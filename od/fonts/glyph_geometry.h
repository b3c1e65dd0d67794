#pragma once

#include "od/fonts/OdFontGlyph.h"

/// How far a flattened curve may stray, as a share of the em or of the height of a capital.
inline constexpr double kGlyphTolerance = 1.0 / 2000;

/// The box around a glyph's points; empty (`isEmpty`) for a glyph without ink.
struct OdGlyphBox {
  double left = 0, bottom = 0, right = 0, top = 0;
  bool isEmpty = true;

  double width() const { return right - left; }
  double height() const { return top - bottom; }
};
OdGlyphBox odGlyphBox(const OdFontGlyph& glyph);

/// A copy, larger by `factor`.
OdFontGlyph odScaledGlyph(const OdFontGlyph& glyph, double factor);

/// A copy for a line that runs from top to bottom: centred below the pen, which goes down by `pitch`.
OdFontGlyph odHangingGlyph(const OdFontGlyph& glyph, double nominalHeight, double pitch);
