#include "micui/sizer.h"

#include "micui/closed_points.h"

namespace micui {

namespace {

/// The points moved towards the second one.
std::vector<OdGePoint2d> shrunk(std::vector<OdGePoint2d> points, double factor) {
  const OdGePoint2d center = points[1];
  for (OdGePoint2d& each : points) each = center + (each - center) * factor;
  return points;
}

}  // namespace

std::vector<OdGePoint2d> sizer::grip_points() const {
  // The extents, not the box: with a negative height a corner keeps its meaning.
  const extents box = local_extents();
  const OdGePoint2d corners[] = {
      {box.min_x, box.max_y}, {box.max_x, box.max_y}, {box.max_x, box.min_y}, {box.min_x, box.min_y}};
  return {corners[corner % 4], corners[(corner + 1) % 4], corners[(corner + 2) % 4]};
}

void sizer::draw_fill(OdGiViewportDraw& draw) { draw.geometry().polygon(closed_points(grip_points())); }

void sizer::draw_outline(OdGiViewportDraw& draw) {
  std::vector<OdGePoint2d> points = grip_points();
  for (const double factor : {1.0, 0.6666666666666666, 0.5}) {
    points = shrunk(std::move(points), factor);
    draw.geometry().polyline(closed_points(points), nullptr, -1);
  }
}

}  // namespace micui
