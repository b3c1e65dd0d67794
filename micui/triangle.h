#pragma once

#include <cstdint>

#include "micui/polygon.h"

namespace micui {

/// A triangle in its box, with the tip in the middle of one side.
class triangle : public polygon {
 public:
  /// Where the tip is, in quarter turns anticlockwise from the right: 0 right, 1 up, 2 left, 3 down.
  std::uint64_t direction = 0;

  /// The tip first.
  std::vector<OdGePoint2d> points() const override;
};

}  // namespace micui
