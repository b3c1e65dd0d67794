#include "host/primitive_hit.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "od/gi/OdGiRecorder.h"

namespace host {
namespace {

double flat_distance(const OdGePoint3d& a, const OdGePoint3d& b) { return std::hypot(a.x - b.x, a.y - b.y); }

double distance_to_segment(const OdGePoint3d& p, const OdGePoint3d& a, const OdGePoint3d& b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double square = dx * dx + dy * dy;
  const double along = square > 0 ? ((p.x - a.x) * dx + (p.y - a.y) * dy) / square : 0;
  const double t = std::clamp(along, 0.0, 1.0);
  return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

bool hits_path(const OdGiContour& path, bool closed, const OdGePoint3d& point, double aperture) {
  if (path.size() == 1) return flat_distance(path.front(), point) <= aperture;
  for (std::size_t i = 1; i < path.size(); ++i) {
    if (distance_to_segment(point, path[i - 1], path[i]) <= aperture) return true;
  }
  return closed && path.size() > 2 && distance_to_segment(point, path.back(), path.front()) <= aperture;
}

/// How often the contour winds around the point.
int winding(const OdGiContour& contour, const OdGePoint3d& p) {
  int turns = 0;
  for (std::size_t i = 0; i < contour.size(); ++i) {
    const OdGePoint3d& a = contour[i];
    const OdGePoint3d& b = contour[(i + 1) % contour.size()];
    const double side = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    if (a.y <= p.y && b.y > p.y && side > 0) ++turns;
    if (a.y > p.y && b.y <= p.y && side < 0) --turns;
  }
  return turns;
}

bool hits_polygon(const OdGiPrimitive& polygon, const OdGePoint3d& point, double aperture) {
  int turns = 0;
  for (const OdGiContour& contour : polygon.contours) {
    if (hits_path(contour, true, point, aperture)) return true;
    turns += winding(contour, point);
  }
  return turns != 0;
}

bool hits_arc(const OdGiPrimitive& arc, const OdGePoint3d& point, double aperture) {
  if (std::abs(flat_distance(arc.center, point) - arc.radius) > aperture) return false;
  if (arc.kind == OdGiPrimitive::kCircle) return true;
  const double turned = std::atan2(point.y - arc.center.y, point.x - arc.center.x) -
                        std::atan2(arc.startVector.y, arc.startVector.x);
  const double along = (arc.sweep < 0) != (arc.normal.z < 0) ? -turned : turned;
  const double full = 2 * std::numbers::pi;
  return along - full * std::floor(along / full) <= std::abs(arc.sweep);
}

}  // namespace

bool hits_primitive(const OdGiPrimitive& primitive, const OdGePoint3d& point, double aperture) {
  switch (primitive.kind) {
    case OdGiPrimitive::kPolyline:
      return std::any_of(primitive.contours.begin(), primitive.contours.end(),
                         [&](const OdGiContour& path) { return hits_path(path, false, point, aperture); });
    case OdGiPrimitive::kPolygon:
      return hits_polygon(primitive, point, aperture);
    default:
      return hits_arc(primitive, point, aperture);
  }
}

}  // namespace host
