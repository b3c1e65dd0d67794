#pragma once

#include <string_view>
#include <vector>

#include "od/ge/OdGePoint2d.h"

class OdGiTextStyle;

/// A line of text taken apart: what the pen draws, in drawing units, in the plane of the text with the start
/// of the baseline as origin and the baseline along X. Drawing and measuring both read this, so that they
/// agree.
struct OdGiTextLine {
  struct Glyph {
    std::vector<std::vector<OdGePoint2d>> contours{};
    bool filled = false;
  };
  /// A line under, over or through the text.
  struct Score {
    OdGePoint2d start{}, end{};
  };

  std::vector<Glyph> glyphs{};  ///< only those with ink
  std::vector<Score> scores{};
  OdGePoint2d end{};  ///< where the next character would start

  /// Throws `OdError(eInvalidInput)` when the style is not loaded. `raw` as for `odReadTextCharacters`.
  static OdGiTextLine place(std::u16string_view text, bool raw, const OdGiTextStyle& style);
};
