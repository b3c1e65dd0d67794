#include "od/gi/OdGiGeometry.h"

#include <algorithm>
#include <cmath>

#include "od/base/OdError.h"
#include "od/gi/OdGiTextLine.h"

namespace {

/// Shares of the larger radius: up to which an ellipse is a circle, and how far its polyline may stray.
constexpr double kRoundness = 1e-9;
constexpr double kUsualDeviation = 1e-3;

constexpr int kMaxPieces = 4096;

/// Drawings may hold any number: what lies nowhere cannot be drawn, and would spoil the extents of the rest.
bool isFinite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

bool areFinite(const OdGiContour& points) { return std::all_of(points.begin(), points.end(), isFinite); }

std::span<const OdGePoint3d> withoutRepeatedEnd(std::span<const OdGePoint3d> points) {
  bool repeats = points.size() > 1 && points.front() == points.back();
  return repeats ? points.first(points.size() - 1) : points;
}

}  // namespace

/// An arc under a general transform: centre + cos t * u + sin t * v, for t from 0 to the sweep.
struct OdGiGeometry::Ellipse {
  OdGePoint3d center{};
  OdGeVector3d u{}, v{};
  double sweep = 2 * M_PI;

  OdGePoint3d at(double t) const { return center + u * std::cos(t) + v * std::sin(t); }
  double largerRadius() const { return std::max(u.length(), v.length()); }
  /// Whether the curve has a place and a size: the squares of its radii count, too.
  bool isDrawable() const {
    return isFinite(center) && std::isfinite(largerRadius()) && std::isfinite(sweep);
  }
  bool isRound() const {
    double slack = kRoundness * largerRadius();
    return std::abs(u.length() - v.length()) <= slack && std::abs(u.dotProduct(v)) <= slack * largerRadius();
  }
};

void OdGiGeometry::pushModelTransform(const OdGeMatrix3d& m) {
  m_transforms.push_back(getModelToWorldTransform() * m);
}

void OdGiGeometry::popModelTransform() {
  if (m_transforms.empty()) throw OdError(eInvalidContext, "No model transform was pushed");
  m_transforms.pop_back();
}

const OdGeMatrix3d& OdGiGeometry::getModelToWorldTransform() const {
  return m_transforms.empty() ? OdGeMatrix3d::kIdentity : m_transforms.back();
}

void OdGiGeometry::polyline(std::span<const OdGePoint3d> points, const OdGeVector3d*, long) {
  if (points.empty()) return;
  OdGiContour world;
  world.reserve(points.size());
  for (const OdGePoint3d& p : points) world.push_back(getModelToWorldTransform() * p);
  if (areFinite(world)) devicePolyline(world);
}

void OdGiGeometry::polygon(std::span<const OdGePoint3d> points) {
  points = withoutRepeatedEnd(points);
  OdGiContour contour(points.begin(), points.end());
  polyPolygon({&contour, 1});
}

void OdGiGeometry::polyPolygon(std::span<const OdGiContour> contours) {
  std::vector<OdGiContour> world;
  for (const OdGiContour& contour : contours) {
    if (contour.empty()) continue;
    OdGiContour& placed = world.emplace_back();
    placed.reserve(contour.size());
    for (const OdGePoint3d& p : contour) placed.push_back(getModelToWorldTransform() * p);
  }
  if (std::all_of(world.begin(), world.end(), areFinite)) emitClosed(world);
}

void OdGiGeometry::emitClosed(std::span<const OdGiContour> contours) {
  if (contours.empty()) return;
  if (m_traits.fillType() == kOdGiFillAlways) return devicePolygon(contours);
  for (OdGiContour edge : contours) {
    edge.push_back(edge.front());
    devicePolyline(edge);
  }
}

void OdGiGeometry::circle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) {
  OdGeVector3d z = normal.normal();
  OdGeVector3d x = z.perpVector();
  const OdGeMatrix3d& m = getModelToWorldTransform();
  Ellipse curve{m * center, m * (x * radius), m * (z.crossProduct(x) * radius)};
  if (!curve.isDrawable()) return;
  if (!curve.isRound()) return ellipticalArc(curve, true);
  deviceCircle(curve.center, curve.u.length(), curve.u.crossProduct(curve.v).normal());
}

void OdGiGeometry::circularArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                               const OdGeVector3d& startVector, double sweepAngle) {
  OdGeVector3d start = startVector.normal() * radius;
  const OdGeMatrix3d& m = getModelToWorldTransform();
  Ellipse curve{m * center, m * start, m * normal.normal().crossProduct(start), sweepAngle};
  if (!curve.isDrawable()) return;
  if (!curve.isRound()) return ellipticalArc(curve, false);
  // A mirror turns the plane's normal along with the arc, so the sweep keeps its sign.
  OdGeVector3d worldNormal = curve.u.crossProduct(curve.v).normal();
  deviceArc(curve.center, curve.u.length(), worldNormal, curve.u, sweepAngle);
}

void OdGiGeometry::ellipticalArc(const Ellipse& curve, bool closed) {
  double radius = curve.largerRadius();
  double tolerance = deviation() > 0 ? std::min(deviation(), radius) : radius * kUsualDeviation;
  double step = 2 * std::acos(1 - tolerance / radius);
  double wanted = std::ceil(std::abs(curve.sweep) / step);
  int n = static_cast<int>(std::clamp<double>(wanted, closed ? 8 : 1, kMaxPieces));
  OdGiContour points;
  for (int i = 0; i < n + (closed ? 0 : 1); ++i) points.push_back(curve.at(curve.sweep * i / n));
  if (closed) return emitClosed({&points, 1});
  devicePolyline(points);
}

void OdGiGeometry::text(const OdGePoint3d& position, const OdGeVector3d& normal,
                        const OdGeVector3d& direction, std::u16string_view text, bool raw,
                        const OdGiTextStyle& style) {
  OdGiTextLine line = OdGiTextLine::place(text, raw, style);
  OdGeVector3d x = direction.normal();
  OdGeVector3d y = normal.normal().crossProduct(x);
  auto placed = [&](const OdGePoint2d& p) { return position + x * p.x + y * p.y; };

  OdGiFillType fillType = m_traits.fillType();
  m_traits.setFillType(kOdGiFillAlways);
  for (const OdGiTextLine::Glyph& glyph : line.glyphs) {
    std::vector<OdGiContour> contours;
    for (const auto& contour : glyph.contours) {
      OdGiContour& points = contours.emplace_back();
      for (const OdGePoint2d& p : contour) points.push_back(placed(p));
      if (!glyph.filled) polyline(points);
    }
    if (glyph.filled) polyPolygon(contours);
  }
  m_traits.setFillType(fillType);
  for (const OdGiTextLine::Score& score : line.scores) polyline({placed(score.start), placed(score.end)});
}
