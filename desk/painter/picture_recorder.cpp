#include "desk/painter/picture_recorder.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "od/gi/OdGiDrawable.h"
#include "od/gi/OdGiViewDashes.h"
#include "od/gi/OdGiWorldDraw.h"

namespace {

/// The colour that is shown. Some programs write a layer's index 7 as true white, too: it means the
/// foreground still, or the layer would vanish on a white ground.
OdCmEntityColor colorOf(const OdGiSubEntityTraits& traits, const OdGiContext& context) {
  const OdCmEntityColor shown = context.shownColor(traits.trueColor(), traits.layer());
  const bool whiteLayer = traits.trueColor().isByLayer() && shown == OdCmEntityColor(255, 255, 255);
  return whiteLayer ? OdCmEntityColor::fromIndex(OdCmEntityColor::kACIForeground) : shown;
}

bool isDashed(const OdGiSubEntityTraits& traits) {
  return traits.lineType() == kOdGiViewDashes;
}

/// Each segment for itself and from the same end whichever way it is drawn, so that the dashes on both sides
/// of a very thin frame fall on each other. No usual line is square to the direction that tells the ends
/// apart.
void addSegments(QPainterPath& path, const QPolygonF& points) {
  const auto along = [](QPointF point) { return point.x() + 0.3717 * point.y(); };
  for (qsizetype i = 1; i < points.size(); ++i) {
    const bool forwards = along(points[i - 1]) < along(points[i]);
    path.moveTo(points[forwards ? i - 1 : i]);
    path.lineTo(points[forwards ? i : i - 1]);
  }
}

}  // namespace

Picture PictureRecorder::record(OdGiDrawable& drawable, const OdGiViewport& view) {
  m_picture = {};
  OdGiWorldDraw draw(*this, m_context, &view);
  draw.draw(drawable);
  for (const PaintBatch& batch : m_picture.batches) m_picture.box |= batch.path.boundingRect();
  return std::exchange(m_picture, {});
}

QPainterPath& PictureRecorder::pathFor(bool filled) {
  const OdGiSubEntityTraits& now = traits();
  const PaintStyle style{colorOf(now, m_context), now.transparency().alpha(), filled,
                         !filled && isDashed(now)};
  if (m_picture.batches.empty() || m_picture.batches.back().style != style) {
    m_picture.batches.push_back({style, {}});
    m_picture.batches.back().path.setFillRule(Qt::WindingFill);
  }
  return m_picture.batches.back().path;
}

void PictureRecorder::devicePolyline(std::span<const OdGePoint3d> points) {
  QPainterPath& path = pathFor(false);
  QPolygonF flat;
  for (const OdGePoint3d& point : points) flat.push_back(m_frame.fromWorld(point));
  if (flat.size() == 1) flat.push_back(flat.front());
  if (isDashed(traits()))
    addSegments(path, flat);
  else
    path.addPolygon(flat);
}

void PictureRecorder::devicePolygon(std::span<const OdGiContour> contours) {
  QPainterPath& path = pathFor(true);
  for (const OdGiContour& contour : contours) {
    if (contour.empty()) continue;
    path.moveTo(m_frame.fromWorld(contour.front()));
    for (const OdGePoint3d& point : std::span(contour).subspan(1)) path.lineTo(m_frame.fromWorld(point));
    path.closeSubpath();
  }
}

void PictureRecorder::deviceCircle(const OdGePoint3d& center, double radius, const OdGeVector3d& normal) {
  QPainterPath& path = pathFor(traits().fillType() == kOdGiFillAlways);
  const OdGeMatrix3d plane = OdGeMatrix3d::planeToWorld(normal);
  addArc(path, center, plane.xAxis() * radius, plane.yAxis() * radius, 2 * std::numbers::pi);
  path.closeSubpath();
}

void PictureRecorder::deviceArc(const OdGePoint3d& center, double, const OdGeVector3d& normal,
                                const OdGeVector3d& startVector, double sweepAngle) {
  const OdGeVector3d quarter = normal.normal().crossProduct(startVector);
  addArc(pathFor(false), center, startVector, quarter, sweepAngle);
}

/// An arc as Bezier curves of at most a quarter turn each: the projection of a curve is the curve of the
/// projected points, so this holds in every view.
void PictureRecorder::addArc(QPainterPath& path, const OdGePoint3d& center, const OdGeVector3d& start,
                             const OdGeVector3d& quarter, double sweep) {
  const QPointF middle = m_frame.fromWorld(center);
  const QPointF u = m_frame.fromWorld(start);
  const QPointF v = m_frame.fromWorld(quarter);
  const int pieces =
      std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / (std::numbers::pi / 2) - 1e-9)));
  const double step = sweep / pieces;
  const double handle = 4.0 / 3.0 * std::tan(step / 4);
  const auto at = [&](double angle) { return middle + u * std::cos(angle) + v * std::sin(angle); };
  const auto slope = [&](double angle) { return (v * std::cos(angle) - u * std::sin(angle)) * handle; };
  path.moveTo(at(0));
  for (int piece = 0; piece < pieces; ++piece) {
    const double from = step * piece, to = step * (piece + 1);
    path.cubicTo(at(from) + slope(from), at(to) - slope(to), at(to));
  }
}
