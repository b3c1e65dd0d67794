#include "od/db/curve_measures.h"

#include <cmath>
#include <numbers>

#include "od/db/OdDbArc.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbEllipse.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbPolyline.h"
#include "od/db/OdDbSpline.h"
#include "od/db/sweep.h"

namespace {

/// Enough pieces that an ellipse's length is right to ten digits, by Simpson's rule.
constexpr int kEllipsePieces = 512;

/// One side of a polyline.
struct Side {
  OdGePoint2d from, to;
  double bulge;

  double chord() const { return std::hypot(to.x - from.x, to.y - from.y); }
  double angle() const { return 4 * std::atan(bulge); }
  double radius() const { return chord() * (1 + bulge * bulge) / (4 * std::abs(bulge)); }
  double length() const { return bulge == 0 ? chord() : radius() * std::abs(angle()); }
  /// What lies between chord and arc, positive on the right of the chord.
  double segment() const {
    if (bulge == 0) return 0;
    return radius() * radius() * (angle() - std::sin(angle())) / 2;
  }
  /// Twice the area of the triangle with the origin.
  double cross() const { return from.x * to.y - to.x * from.y; }
};

/// Calls `visit` with each side; with the chord that closes an open polyline if `closed`.
template <typename Visit>
void forEachSide(const OdDbPolyline& line, bool closed, const Visit& visit) {
  const unsigned count = line.numVerts();
  for (unsigned at = 0; at < count; ++at) {
    const bool isLast = at + 1 == count;
    if (isLast && !line.isClosed() && !closed) return;
    const double bulge = isLast && !line.isClosed() ? 0 : line.getBulgeAt(at);
    visit(Side{line.getPointAt(at), line.getPointAt(isLast ? 0 : at + 1), bulge});
  }
}

double lengthOf(const OdDbPolyline& line) {
  double sum = 0;
  forEachSide(line, /*closed=*/false, [&](const Side& side) { sum += side.length(); });
  return sum;
}

double areaOf(const OdDbPolyline& line) {
  double sum = 0;
  forEachSide(line, /*closed=*/true, [&](const Side& side) { sum += side.cross() / 2 + side.segment(); });
  return std::abs(sum);
}

double ellipseSweep(const OdDbEllipse& ellipse) { return odSweep(ellipse.startParam(), ellipse.endParam()); }

double lengthOf(const OdDbEllipse& ellipse) {
  const double major = ellipse.majorAxis().length(), minor = ellipse.minorAxis().length();
  const double step = ellipseSweep(ellipse) / kEllipsePieces;
  double sum = 0;
  for (int i = 0; i <= kEllipsePieces; ++i) {
    const double at = ellipse.startParam() + step * i;
    const double weight = i == 0 || i == kEllipsePieces ? 1 : i % 2 == 1 ? 4 : 2;
    sum += weight * std::hypot(major * std::sin(at), minor * std::cos(at));
  }
  return sum * step / 3;
}

double areaOf(const OdDbEllipse& ellipse) {
  const double sweep = ellipseSweep(ellipse);
  return ellipse.majorAxis().length() * ellipse.minorAxis().length() * (sweep - std::sin(sweep)) / 2;
}

double lengthOf(const OdDbSpline& spline) {
  const std::vector<OdGePoint3d> points = spline.samples();
  double sum = 0;
  for (std::size_t i = 1; i < points.size(); ++i) sum += points[i - 1].distanceTo(points[i]);
  return sum;
}

double sweepOf(const OdDbArc& arc) { return odSweep(arc.startAngle(), arc.endAngle()); }

}  // namespace

std::optional<double> odCurveLength(const OdDbEntity& entity) {
  if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
    return line->startPoint().distanceTo(line->endPoint());
  if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity)) return arc->radius() * sweepOf(*arc);
  if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity)) return circle->radius() * kOdTurn;
  if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity)) return lengthOf(*polyline);
  if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity)) return lengthOf(*ellipse);
  if (const auto* spline = dynamic_cast<const OdDbSpline*>(&entity)) return lengthOf(*spline);
  return {};
}

std::optional<double> odCurveArea(const OdDbEntity& entity) {
  if (const auto* arc = dynamic_cast<const OdDbArc*>(&entity)) {
    const double sweep = sweepOf(*arc);
    return arc->radius() * arc->radius() * (sweep - std::sin(sweep)) / 2;
  }
  if (const auto* circle = dynamic_cast<const OdDbCircle*>(&entity))
    return circle->radius() * circle->radius() * std::numbers::pi;
  if (const auto* polyline = dynamic_cast<const OdDbPolyline*>(&entity)) return areaOf(*polyline);
  if (const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity)) return areaOf(*ellipse);
  return {};
}
