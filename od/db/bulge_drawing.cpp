#include "od/db/bulge_drawing.h"

#include <cmath>

#include "od/gi/OdGiGeometry.h"

namespace {

/// The bulge is the tangent of a quarter of the arc's angle. The centre lies on the chord's bisector, to the
/// left of the way for a positive bulge of less than half a circle.
void drawArc(OdGiGeometry& geometry, const OdGePoint3d& from, const OdGePoint3d& to, double bulge) {
  const OdGeVector3d chord = to - from;
  const double sweep = 4 * std::atan(bulge);
  const double distance = chord.length() / 2 / std::tan(sweep / 2);  // signed, from the chord to the centre
  const OdGeVector3d left = OdGeVector3d{-chord.y, chord.x, 0}.normal();
  const OdGePoint3d center = from + chord * 0.5 + left * distance;
  geometry.circularArc(center, center.distanceTo(from), OdGeVector3d::kZAxis, from - center, sweep);
}

}  // namespace

void odDrawBulgeLine(OdGiGeometry& geometry, const std::vector<OdBulgeVertex>& vertices, bool closed) {
  std::vector<OdGePoint3d> straight;
  const auto flush = [&] {
    if (straight.size() > 1) geometry.polyline(straight);
    straight.clear();
  };
  const std::size_t count = vertices.size();
  const std::size_t segments = count < 2 ? 0 : closed ? count : count - 1;
  for (std::size_t i = 0; i < segments; ++i) {
    const OdBulgeVertex& from = vertices[i];
    const OdGePoint3d& to = vertices[(i + 1) % count].point;
    if (from.bulge != 0 && from.point.distanceTo(to) > 0) {
      flush();
      drawArc(geometry, from.point, to, from.bulge);
      continue;
    }
    if (straight.empty()) straight.push_back(from.point);
    straight.push_back(to);
  }
  flush();
}
