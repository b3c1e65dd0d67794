#pragma once

#include <functional>

#include "editor/text_frame.h"
#include "od/ge/OdGeExtents3d.h"
#include "od/ge/OdGePoint2d.h"

namespace editing {

/// What has to be known of a text to place it in the view. Boxes and points are in text coordinates.
struct shown_text {
  text_frame frame;
  double height = 0;      ///< of the text, drawing units
  OdGeExtents3d extents;  ///< of its lines
  /// Of the ruler and handles around them, which keep their size on the screen: in a view whose pixels have
  /// this length. Null for a text without any.
  std::function<OdGeExtents3d(double units_per_pixel)> tools;
  OdGePoint2d caret_top;
  OdGePoint2d caret_bottom;

  OdGePoint3d caret_middle() const {
    return {(caret_top.x + caret_bottom.x) / 2, (caret_top.y + caret_bottom.y) / 2, 0};
  }
};

}  // namespace editing
