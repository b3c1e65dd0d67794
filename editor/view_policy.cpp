#include "editor/view_policy.h"

#include <cmath>

using editing::shown_text;
using editing::view_reading;

namespace {

bool is_in_sight(const OdGsView& view, const shown_text& text) {
  const OdGeMatrix3d to_world = text.frame.text_to_world();
  const auto seen = [&](const OdGePoint2d& end) {
    return view.deviceRect().contains(view.toDevice(to_world * OdGePoint3d{end.x, end.y, 0}));
  };
  return seen(text.caret_top) && seen(text.caret_bottom);
}

}  // namespace

void view_policy::begin(const OdGsView& view) { m_axes_at_start = editing::screen_axes::of(view); }

view_policy::outcome view_policy::text_changed(OdGsView& view, const shown_text& text, bool turn_text) {
  const view_reading reading = editing::read_view(view, m_axes_at_start.up, text.frame, text.height);
  if (!std::isfinite(reading.magnification) || reading.magnification <= 0) return outcome::kLeft;
  if (m_untouched && reading.readable() && is_in_sight(view, text)) return outcome::kLeft;
  m_untouched = false;
  if (turn_text) {
    face_screen(view, text, reading);
    return outcome::kTextFacing;
  }
  place_view(view, text, reading);
  return outcome::kViewMoved;
}

void view_policy::place_view(OdGsView& view, const shown_text& text, const view_reading& reading) {
  m_edit_transform = OdGeMatrix3d();
  m_is_facing = false;
  editing::move_view(view, text, reading, m_zones);
}

void view_policy::face_screen(const OdGsView& view, const shown_text& text, const view_reading& reading) {
  const OdGeVector3d shift = editing::facing_shift(view, text, m_axes_at_start, reading, m_zones);
  m_edit_transform = editing::facing_transform(text.frame, m_axes_at_start, reading.magnification, shift);
  m_is_facing = true;
}
