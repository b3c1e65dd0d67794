#include "micui/circle.h"

#include <algorithm>

namespace micui {

void circle::draw_fill(OdGiViewportDraw& draw) {
  draw.geometry().circle({width / 2, height / 2, 0}, std::min(width, height) / 2, OdGeVector3d::kZAxis);
}

void circle::draw_outline(OdGiViewportDraw& draw) { draw_fill(draw); }

}  // namespace micui
