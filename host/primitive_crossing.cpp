#include "host/primitive_crossing.h"

#include <algorithm>
#include <cmath>

#include "host/primitive_hit.h"
#include "od/gi/OdGiRecorder.h"

namespace host {
namespace {

/// Straight pieces that stand for a full circle.
constexpr int kPieces = 64;

/// Cuts the piece of a line that lies on the inner side of one edge: `distance` is how far its start lies
/// inside, `change` how much further its end does. False when nothing is left of `from` to `to`.
bool keep_inside(double distance, double change, double& from, double& to) {
  if (change == 0) return distance >= 0;
  const double at = -distance / change;
  if (change > 0)
    from = std::max(from, at);
  else
    to = std::min(to, at);
  return from <= to;
}

bool segment_crosses(const OdGePoint3d& a, const OdGePoint3d& b, const OdGeExtents3d& box) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  double from = 0, to = 1;
  return keep_inside(a.x - box.minPoint().x, dx, from, to) &&
         keep_inside(box.maxPoint().x - a.x, -dx, from, to) &&
         keep_inside(a.y - box.minPoint().y, dy, from, to) &&
         keep_inside(box.maxPoint().y - a.y, -dy, from, to);
}

bool path_crosses(const OdGiContour& path, bool closed, const OdGeExtents3d& box) {
  if (path.empty()) return false;
  for (std::size_t i = 1; i < path.size(); ++i)
    if (segment_crosses(path[i - 1], path[i], box)) return true;
  return (closed || path.size() == 1) && segment_crosses(path.back(), path.front(), box);
}

/// The points of a circle or an arc.
OdGiContour points_of(const OdGiPrimitive& arc) {
  const bool full = arc.kind == OdGiPrimitive::kCircle;
  const double sweep = full ? 2 * std::acos(-1.0) : arc.sweep;
  const OdGeVector3d start = (full ? arc.normal.perpVector() : arc.startVector.normal()) * arc.radius;
  OdGiContour points;
  for (int i = 0; i <= kPieces; ++i)
    points.push_back(arc.center + start.rotatedBy(sweep * i / kPieces, arc.normal));
  return points;
}

}  // namespace

bool crosses(const OdGiPrimitive& primitive, const OdGeExtents3d& box) {
  switch (primitive.kind) {
    case OdGiPrimitive::kPolyline:
      return path_crosses(primitive.contours.front(), false, box);
    case OdGiPrimitive::kPolygon:
      // A box within the area crosses no edge; any point of it then lies in the area.
      return std::any_of(primitive.contours.begin(), primitive.contours.end(),
                         [&box](const OdGiContour& contour) { return path_crosses(contour, true, box); }) ||
             hits_primitive(primitive, box.minPoint(), 0);
    default:
      return path_crosses(points_of(primitive), false, box);
  }
}

}  // namespace host
