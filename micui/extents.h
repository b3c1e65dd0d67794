#pragma once

#include <limits>

#include "od/ge/OdGePoint2d.h"

namespace micui {

/// A rectangle along the axes, both ends included. A fresh one is empty: its minimum exceeds its maximum.
struct extents {
  double min_x = std::numeric_limits<double>::infinity();
  double max_x = -std::numeric_limits<double>::infinity();
  double min_y = std::numeric_limits<double>::infinity();
  double max_y = -std::numeric_limits<double>::infinity();

  bool is_empty() const { return min_x > max_x || min_y > max_y; }
  /// Grows to hold `point`.
  void add(const OdGePoint2d& point);
  /// Grows to hold `other`; an empty one changes nothing.
  void merge(const extents& other);

  friend bool operator==(const extents&, const extents&) = default;
};

}  // namespace micui
