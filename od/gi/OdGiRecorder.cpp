#include "od/gi/OdGiRecorder.h"

#include <algorithm>

#include "od/gi/OdGiDrawable.h"

int OdGiRecorder::count(OdGiPrimitive::Kind kind) const {
  return static_cast<int>(std::ranges::count(m_primitives, kind, &OdGiPrimitive::kind));
}

std::string OdGiRecorder::describe() const {
  std::string result;
  for (const OdGiPrimitive& primitive : m_primitives) result += primitive.describe() + "\n";
  return result;
}

OdGeExtents3d OdGiRecorder::extents() const {
  OdGeExtents3d box;
  for (const OdGiPrimitive& primitive : m_primitives) {
    for (const OdGiContour& contour : primitive.contours) {
      for (const OdGePoint3d& p : contour) box.addPoint(p);
    }
    if (primitive.kind != OdGiPrimitive::kCircle && primitive.kind != OdGiPrimitive::kArc) continue;
    // Along each axis a circle reaches as far as the axis leans into its plane.
    auto reach = [&primitive](double n) { return primitive.radius * std::sqrt(std::max(0.0, 1 - n * n)); };
    const OdGeVector3d& n = primitive.normal;
    OdGeVector3d half{reach(n.x), reach(n.y), reach(n.z)};
    box.addPoint(primitive.center - half);
    box.addPoint(primitive.center + half);
  }
  return box;
}

void OdGiRecorder::record(OdGiDrawable& drawable, const OdGiContext& context, const OdGiViewport* viewport) {
  clear();
  OdGiWorldDraw(*this, context, viewport).draw(drawable);
}

void OdGiRecorder::devicePolyline(std::span<const OdGePoint3d> points) {
  m_primitives.push_back({.kind = OdGiPrimitive::kPolyline,
                          .contours = {OdGiContour(points.begin(), points.end())},
                          .traits = traits()});
}

void OdGiRecorder::devicePolygon(std::span<const OdGiContour> contours) {
  m_primitives.push_back(
      {.kind = OdGiPrimitive::kPolygon, .contours = {contours.begin(), contours.end()}, .traits = traits()});
}

void OdGiRecorder::deviceCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) {
  m_primitives.push_back({.kind = OdGiPrimitive::kCircle,
                          .center = center,
                          .radius = radius,
                          .normal = normal,
                          .traits = traits()});
}

void OdGiRecorder::deviceArc(const OdGePoint3d& center, double radius, const OdGeVector3d& normal,
                             const OdGeVector3d& startVector, double sweepAngle) {
  m_primitives.push_back({.kind = OdGiPrimitive::kArc,
                          .center = center,
                          .radius = radius,
                          .normal = normal,
                          .startVector = startVector,
                          .sweep = sweepAngle,
                          .traits = traits()});
}
