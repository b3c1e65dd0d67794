#pragma once

#include "micui/control.h"

namespace micui {

/// A rectangle: the fill below, the outline on top of it, each only if it has a colour.
class frame : public control {
 public:
  void draw(OdGiViewportDraw& draw) override;
  /// Emits the shape, filled.
  virtual void draw_fill(OdGiViewportDraw& draw);
  /// Emits the shape's edge.
  virtual void draw_outline(OdGiViewportDraw& draw);
};

}  // namespace micui
