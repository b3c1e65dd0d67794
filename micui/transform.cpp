#include "micui/transform.h"

#include <cmath>

namespace micui {

namespace {

OdGePoint2d turned(const OdGePoint2d& point, double angle) {
  const double sine = std::sin(angle);
  const double cosine = std::cos(angle);
  return {cosine * point.x - sine * point.y, sine * point.x + cosine * point.y};
}

}  // namespace

OdGePoint2d to_local(const control& control, const OdGePoint2d& point) {
  return turned({point.x - control.x, point.y - control.y}, -control.rotation);
}

OdGePoint2d to_parent(const control& control, const OdGePoint2d& point) {
  const OdGePoint2d at = turned(point, control.rotation);
  return {control.x + at.x, control.y + at.y};
}

OdGeMatrix3d to_parent_matrix(const control& control) {
  const OdGePoint3d origin{control.x, control.y, 0};
  return OdGeMatrix3d::rotation(control.rotation, OdGeVector3d::kZAxis, origin) *
         OdGeMatrix3d::translation(origin.asVector());
}

OdGePoint2d path_to_local(const control_path& path, OdGePoint2d point) {
  for (const control_ptr& each : path) point = to_local(*each, point);
  return point;
}

}  // namespace micui
