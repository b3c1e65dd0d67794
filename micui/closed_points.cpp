#include "micui/closed_points.h"

namespace micui {

std::vector<OdGePoint2d> rectangle_points(double width, double height) {
  return {{0, 0}, {width, 0}, {width, height}, {0, height}};
}

std::vector<OdGePoint3d> closed_points(const std::vector<OdGePoint2d>& points) {
  std::vector<OdGePoint3d> closed;
  for (const OdGePoint2d& point : points) closed.push_back({point.x, point.y, 0});
  if (!closed.empty()) closed.push_back(closed.front());
  return closed;
}

}  // namespace micui
