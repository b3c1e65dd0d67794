#pragma once

#include "editor/text_frame.h"
#include "od/gi/OdGsView.h"

namespace editing {

/// How a text is seen in a view, and whether it can be edited as it is seen.
struct view_reading {
  bool turned = false;       ///< too far from upright, or seen too far from the side, to be read
  double caret_pixels = 13;  ///< height of a line that is good to edit, in pixels
  double magnification =
      1;  ///< what the view would have to magnify by for lines of that height; may be infinite
  double view_height = 1;  ///< of the device, in pixels

  /// Lines are higher than half the view.
  bool too_big() const { return magnification < 2 * caret_pixels / view_height; }
  bool too_small() const { return magnification > 1.1; }
  bool readable() const { return !turned && !too_small() && !too_big(); }
};

/// Reads how `view` shows a text of `text_height` drawing units. `up_at_start` is the view's up vector from
/// when the session began.
view_reading read_view(const OdGsView& view, const OdGeVector3d& up_at_start, const text_frame& frame,
                       double text_height);

}  // namespace editing
