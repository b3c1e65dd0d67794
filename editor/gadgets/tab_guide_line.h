#pragma once

#include "micui/frame.h"

namespace mtext {

/// A dashed line down a column at the stop that is being dragged.
class tab_guide_line : public micui::frame {
 public:
  void draw_outline(OdGiViewportDraw& draw) override;
};

}  // namespace mtext
