#include "editor/dead_zone.h"

namespace editing {

namespace {

/// Of the view's size, to either side of the centre.
constexpr double kHalfZone = 3 * 0.25 * 0.5;
constexpr double kMargin = 0.005;

}  // namespace

void dead_zone::follow(double caret, double view_size) {
  const double half = view_size * kHalfZone;
  if (caret < center() - half) m_center = caret + half;
  if (caret > center() + half) m_center = caret - half;
}

double pull_to_box(double zone_center, double box_center, double box_size, double view_size) {
  const double low = box_center - view_size / 2;
  const double high = box_center + view_size / 2;
  const double reach = box_size / 2 + (high - low) * kMargin;
  const double first = zone_center - reach;
  const double last = zone_center + reach;
  if (first < low && last > high) return 0;
  if (first < low) return high - last;
  return last > high ? low - first : 0;
}

double nudge_into_view(double box_center, double half_box, double view_size) {
  const double reach = half_box + view_size * kMargin;
  if (box_center + reach > view_size) return view_size - (box_center + reach);
  return box_center - reach >= 0 ? 0 : -(box_center - reach);
}

}  // namespace editing
