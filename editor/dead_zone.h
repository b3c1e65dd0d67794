#pragma once

namespace editing {

/// The stretch of one axis in which the caret may move without moving what is shown.
class dead_zone {
 public:
  double center() const { return m_center; }
  void set_center(double center) { m_center = center; }
  /// Moves the zone just as far as the caret pushes it. The zone is three eighths of `view_size` to either
  /// side of its centre.
  void follow(double caret, double view_size);

 private:
  double m_center = 0;
};

/// How far what is centred at `zone_center` has to be moved on one axis so that a view of `view_size` shows
/// no more beyond either end of a box than it must. `box_center` and `box_size` are the box's, in the same
/// units.
double pull_to_box(double zone_center, double box_center, double box_size, double view_size);

/// How far a box has to be moved on one axis of a view from 0 to `view_size` to lie within it, with a
/// margin.
double nudge_into_view(double box_center, double half_box, double view_size);

}  // namespace editing
