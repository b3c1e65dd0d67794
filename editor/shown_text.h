#pragma once

#include "editor/text_frame.h"
#include "od/ge/OdGeExtents3d.h"
#include "od/ge/OdGePoint2d.h"

namespace editing {

/// What has to be known of a text to place it in the view. Boxes and points are in text coordinates.
struct shown_text {
  text_frame frame;
  double height = 0;                ///< of the text, drawing units
  OdGeExtents3d extents;            ///< of its lines
  OdGeExtents3d extents_and_tools;  ///< of its lines and of the ruler and handles around them
  OdGePoint2d caret_top;
  OdGePoint2d caret_bottom;

  OdGePoint3d caret_middle() const {
    return {(caret_top.x + caret_bottom.x) / 2, (caret_top.y + caret_bottom.y) / 2, 0};
  }
};

}  // namespace editing
