#include "micui/polygon.h"

#include "micui/closed_points.h"

namespace micui {

void polygon::draw_fill(OdGiViewportDraw& draw) { draw.geometry().polygon(closed_points(points())); }

void polygon::draw_outline(OdGiViewportDraw& draw) {
  draw.geometry().polyline(closed_points(points()), nullptr, -1);
}

std::vector<OdGePoint2d> polygon::points() const { return rectangle_points(width, height); }

}  // namespace micui
