#pragma once

#include <optional>

namespace editing {

/// The stretch of one axis in which the caret may move without moving what is shown.
class dead_zone {
 public:
  double center() const { return m_center.value_or(0); }
  /// Puts the zone around the place where the caret is first seen; later calls change nothing.
  void begin_at(double caret) {
    if (!m_center) m_center = caret;
  }
  /// Moves the zone just as far as the caret pushes it. The zone is three eighths of `view_size` to either
  /// side of its centre.
  void follow(double caret, double view_size);

 private:
  std::optional<double> m_center;
};

/// How far what is centred at `zone_center` has to be moved on one axis so that a view of `view_size` shows
/// no more beyond either end of a box than it must. `box_center` and `box_size` are the box's, in the same
/// units.
double pull_to_box(double zone_center, double box_center, double box_size, double view_size);

/// How far a box has to be moved on one axis of a view from 0 to `view_size` to lie within it, with a
/// margin.
double nudge_into_view(double box_center, double half_box, double view_size);

}  // namespace editing
