#pragma once

#include "micui/frame.h"

namespace micui {

/// A closed shape of straight edges. A plain one looks like a frame.
class polygon : public frame {
 public:
  void draw_fill(OdGiViewportDraw& draw) override;
  void draw_outline(OdGiViewportDraw& draw) override;
  /// The corners, in own coordinates, without the first one again at the end.
  virtual std::vector<OdGePoint2d> points() const;
};

}  // namespace micui
