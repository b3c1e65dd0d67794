#pragma once

#include <cstddef>

#include "mtext/string_size_finder.h"

namespace mtext {

/// One line of a layout.
struct geom_line {
  string_metrics size;  ///< `head`, `above`, `below`, `gap` of the tallest part; `advance` of the line's last
                        ///< segment; no bearings; `ink_top` = `above`, `ink_bottom` 0
  std::size_t first = 0;  ///< first part
  std::size_t last =
      0;         ///< one past the last part; equals `first` only in an empty line at the end of the text
  double x = 0;  ///< of the first part
  double y = 0;  ///< baseline
};

/// One column of a layout.
struct geom_column {
  std::size_t first = 0;  ///< first part
  std::size_t last = 0;   ///< one past the last part
  double x = 0;           ///< origin, top left
  double y = 0;
  double width = 0;
  double height = 0;  ///< of the text in it
};

}  // namespace mtext
