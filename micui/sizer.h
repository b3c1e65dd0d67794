#pragma once

#include <cstdint>

#include "micui/frame.h"

namespace micui {

/// A corner grip: a triangle with its right angle in one corner of the box, hatched by two smaller ones.
class sizer : public frame {
 public:
  /// Where the right angle is: 0 top right, 1 bottom right, 2 bottom left, 3 top left; taken modulo 4.
  std::uint32_t corner = 0;

  void draw_fill(OdGiViewportDraw& draw) override;
  /// At full size, at two thirds and at one third.
  void draw_outline(OdGiViewportDraw& draw) override;

 private:
  std::vector<OdGePoint2d> grip_points() const;
};

}  // namespace micui
