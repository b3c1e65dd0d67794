#include "od/db/OdDbSpline.h"

#include "od/db/point_list.h"

ODRX_DEFINE_MEMBERS(OdDbSpline, OdDbEntity, "SPLINE")

namespace {

const OdDbSubclass kSpline{"AcDbSpline", {}};
constexpr int kHighestDegree = 25;
constexpr int kSamplesPerSpan = 16;

/// A control point with its weight multiplied in.
struct Weighted {
  OdGeVector3d point;
  double weight;
};

/// The point at parameter `t` of the span that begins with knot `span`, by repeated interpolation.
OdGePoint3d pointAt(const std::vector<Weighted>& control, const std::vector<double>& knots,
                    std::size_t degree, std::size_t span, double t) {
  std::vector<Weighted> level(control.begin() + static_cast<std::ptrdiff_t>(span - degree),
                              control.begin() + static_cast<std::ptrdiff_t>(span) + 1);
  for (std::size_t r = 1; r <= degree; ++r) {
    for (std::size_t j = degree; j >= r; --j) {
      const double low = knots[span - degree + j], high = knots[span + 1 + j - r];
      const double part = high > low ? (t - low) / (high - low) : 0;
      level[j].point = level[j - 1].point * (1 - part) + level[j].point * part;
      level[j].weight = level[j - 1].weight * (1 - part) + level[j].weight * part;
    }
  }
  const Weighted& end = level[degree];
  return OdGePoint3d() + (end.weight != 0 ? end.point / end.weight : end.point);
}

}  // namespace

int OdDbSpline::degree() const { return groups(kSpline).integer(71, 3); }

std::vector<OdGePoint3d> OdDbSpline::controlPoints() const {
  return odPointList(record(), groups(kSpline).range(), 10);
}

std::vector<OdGePoint3d> OdDbSpline::fitPoints() const {
  return odPointList(record(), groups(kSpline).range(), 11);
}

std::vector<OdGePoint3d> OdDbSpline::samples() const {
  const dxf::Range range = groups(kSpline).range();
  const std::vector<OdGePoint3d> points = controlPoints(), through = fitPoints();
  const std::vector<double> knots = odNumberList(record(), range, 40),
                            weights = odNumberList(record(), range, 41);
  const bool sane = degree() >= 1 && degree() <= kHighestDegree;
  const std::size_t order = sane ? static_cast<std::size_t>(degree()) : 0;
  if (!sane || points.size() <= order || knots.size() != points.size() + order + 1)
    return through.empty() ? points : through;
  std::vector<Weighted> control;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double weight = weights.size() == points.size() ? weights[i] : 1;
    control.push_back({points[i].asVector() * weight, weight});
  }
  std::vector<OdGePoint3d> result;
  for (std::size_t span = order; span < points.size(); ++span) {
    const double step = (knots[span + 1] - knots[span]) / kSamplesPerSpan;
    if (step <= 0) continue;
    for (int i = result.empty() ? 0 : 1; i <= kSamplesPerSpan; ++i) {
      result.push_back(pointAt(control, knots, order, span, knots[span] + step * i));
    }
  }
  return result;
}

void OdDbSpline::drawGeometry(OdGiWorldDraw& draw) const {
  const std::vector<OdGePoint3d> points = samples();
  if (points.size() > 1) draw.geometry().polyline(points);
}
