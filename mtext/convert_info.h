#pragma once

#include <cstdint>
#include <vector>

#include "mtext/format.h"

namespace mtext {

/// The columns of a text. Lengths are drawing units.
struct column_settings {
  double width = 0;        ///< width of a column and so of wrapping; 0 means no wrapping at all
  double gutter = 0;       ///< gap between columns
  std::uint32_t kind = 0;  ///< 0: as many columns as `heights` has entries. 1: manual, a column exists as
                           ///< long as its height exists and is not 0. 2: columns without end
  std::vector<double> heights{0.0};  ///< height limits; the kinds 0 and 2 read the first one for every column
};

/// What layout takes from the entity, beside the text itself.
struct convert_info {
  column_settings columns;               ///< where lines wrap, and where a column ends
  double height = 2.5;                   ///< text height, the scale of all relative lengths
  std::uint32_t alignment = 1;           ///< for paragraphs without one; numbers as in `format::paragraph`
  std::uint32_t vertical = 0;            ///< attachment: 0 top, 1 middle, 2 bottom
  format::line_spacing spacing{3, 1.0};  ///< for paragraphs whose spacing has style 0
  std::uint32_t extents_mode = 0;  ///< which width counts for alignment: 0 advance (multi-line text), 1 ink,
                                   ///< 2 ink for shape fonts only
};

}  // namespace mtext
