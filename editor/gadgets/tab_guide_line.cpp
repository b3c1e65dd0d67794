#include "editor/gadgets/tab_guide_line.h"

#include "editor/gadgets/line_type.h"

namespace mtext {

void tab_guide_line::draw_outline(OdGiViewportDraw& draw) {
  vcgiSetLineType(draw.subEntityTraits(), kVcgiDashed, 1);
  frame::draw_outline(draw);
  vcgiSetLineType(draw.subEntityTraits(), kVcgiDefault, 1);
}

}  // namespace mtext
