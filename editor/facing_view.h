#pragma once

#include "editor/moved_view.h"

namespace editing {

/// The axes that a text gets when it is shown facing the screen: from left to right, upwards and to the
/// viewer, each of length 1.
struct screen_axes {
  OdGeVector3d right = OdGeVector3d::kXAxis;
  OdGeVector3d up = OdGeVector3d::kYAxis;
  OdGeVector3d to_viewer = OdGeVector3d::kZAxis;

  /// Of a view.
  static screen_axes of(const OdGsView& view);
};

/// From the drawing to a place where the text faces the screen, upright and magnified, with its insertion
/// point where it was; then moved by `shift`.
OdGeMatrix3d facing_transform(const text_frame& frame, const screen_axes& axes, double magnification,
                              const OdGeVector3d& shift);

/// How far a text that faces the screen has to be moved, in the world, to lie in the view with its caret in
/// sight. `zones` are in pixels and follow the caret.
OdGeVector3d facing_shift(const OdGsView& view, const shown_text& text, const screen_axes& axes,
                          const view_reading& reading, dead_zones& zones);

}  // namespace editing
