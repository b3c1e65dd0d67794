#pragma once

#include "micui/frame.h"

namespace micui {

/// The largest circle about the middle of the box that lies in it.
class circle : public frame {
 public:
  /// Both halves draw the same circle: the fill type in force decides whether it is filled.
  void draw_fill(OdGiViewportDraw& draw) override;
  void draw_outline(OdGiViewportDraw& draw) override;
};

}  // namespace micui
