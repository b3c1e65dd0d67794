#pragma once

#include "editor/facing_view.h"

/// How the text is shown while it is edited: as it lies in the drawing, if it can be read and edited so. If
/// not, either the view is moved straight on to it, or the text is drawn facing the screen, upright and large
/// enough, while the view stays. What was chosen is looked at again after each change; zooming and panning in
/// between are the user's.
class view_policy {
 public:
  enum class outcome {
    kLeft,        ///< the text is shown as it was
    kViewMoved,   ///< the camera has changed
    kTextFacing,  ///< the edit transform has changed
  };

  /// A session begins in `view`: the up vector and the line of sight of this moment are kept.
  void begin(const OdGsView& view);
  /// The same with what another session kept.
  void begin(const view_policy& earlier) { m_axes_at_start = earlier.m_axes_at_start; }
  /// The text or its caret has changed. With `turn_text` a text that cannot be edited as it lies is drawn
  /// facing the screen; without it the view is moved.
  outcome text_changed(OdGsView& view, const editing::shown_text& text, bool turn_text);
  /// The text is shown facing the screen.
  bool is_facing() const { return m_is_facing; }

  /// From the drawing to where the text is shown. All drawing goes through it, all pointing through its
  /// inverse. The identity where the text is shown as it lies.
  const OdGeMatrix3d& edit_transform() const { return m_edit_transform; }

 private:
  void place_view(OdGsView& view, const editing::shown_text& text, const editing::view_reading& reading);
  void face_screen(const OdGsView& view, const editing::shown_text& text,
                   const editing::view_reading& reading);

  editing::screen_axes m_axes_at_start;
  editing::dead_zones m_zones;
  OdGeMatrix3d m_edit_transform;
  bool m_is_facing = false;
  /// Nothing has been moved yet, so what can be read is left alone.
  bool m_untouched = true;
};
