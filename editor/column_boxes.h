#pragma once

#include <vector>

#include "mtext/geom_multitext.h"
#include "od/ge/OdGePoint2d.h"

namespace editing {

/// A rectangle in text coordinates, Y upwards.
struct text_box {
  double left, bottom, right, top;

  bool contains(const OdGePoint2d& p) const {
    return p.x >= left && p.x <= right && p.y >= bottom && p.y <= top;
  }
};

/// How far the box of a column reaches over it, in text heights.
inline constexpr double kColumnMargin = 0.3;

/// The boxes of the columns that hold text, `margin` text heights larger on every side: from the column's
/// edge to its width or its widest row, and from its top to its height limit or its last line, whichever is
/// more.
std::vector<text_box> column_boxes(const mtext::geom_multitext& text, double margin);

/// True when `point` lies in the text's own rectangle: the box of a column, or in a text without letters the
/// place of its first line.
bool is_in_text(const mtext::geom_multitext& text, const OdGePoint2d& point);

}  // namespace editing
