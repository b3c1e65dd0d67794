#include "micui/frame.h"

#include "micui/closed_points.h"

namespace micui {

void frame::draw(OdGiViewportDraw& draw) {
  OdGiSubEntityTraits& traits = draw.subEntityTraits();
  traits.setFillType(kOdGiFillAlways);
  traits.setTrueColor(fill_color);
  if (!is_none(fill_color)) draw_fill(draw);
  traits.setFillType(kOdGiFillNever);
  traits.setTrueColor(border_color);
  if (!is_none(border_color)) draw_outline(draw);
}

void frame::draw_fill(OdGiViewportDraw& draw) {
  draw.geometry().polygon(closed_points(rectangle_points(width, height)));
}

void frame::draw_outline(OdGiViewportDraw& draw) {
  draw.geometry().polyline(closed_points(rectangle_points(width, height)), nullptr, -1);
}

}  // namespace micui
