#include "commands/multi_line/preview_tracker.h"

#include <algorithm>
#include <cmath>

#include "od/db/OdDbDatabase.h"
#include "od/ge/OdGeLine3d.h"
#include "od/gi/OdGiViewport.h"

namespace {

constexpr const char16_t* kSample = u"ABC";

OdGePlane plane_of(const OdDbMText& text) {
  OdGePlane plane;
  return text.getPlane(plane) == eOk ? plane : OdGePlane::kXYPlane;
}

OdDbPolylinePtr new_frame(const OdDbMText& text, const OdGePlane& plane) {
  auto frame = odNew<OdDbPolyline>();
  frame->setDatabaseDefaults(text.database());
  frame->setLinetype(u"Continuous");
  frame->setNormal(plane.normal());
  for (unsigned i = 0; i < 4; ++i) frame->addVertexAt(i, {});
  frame->setClosed(true);
  return frame;
}

}  // namespace

bool project_on_plane(const OdGePoint3d& point, const OdGeVector3d& direction, const OdGePlane& plane,
                      OdGePoint2d& at) {
  OdGePoint3d seen;
  if (!OdGeLine3d(point, direction).intersectWith(plane, seen)) return false;
  at = plane.paramOf(seen);
  return true;
}

MTPreviewTracker::MTPreviewTracker(OdDbMTextPtr text, const OdGiViewport& view)
    : m_text(std::move(text)), m_view(view), m_plane(plane_of(*m_text)) {
  m_text->setContents(kSample);
}

void MTPreviewTracker::setFirstCorner(const OdGePoint3d& corner) {
  m_first_corner = corner;
  const OdGePlane own = plane_of(*m_text);
  m_plane = OdGePlane(corner, own.uAxis(), own.vAxis());
  m_corner_uv = m_plane.paramOf(corner);
  m_frame = new_frame(*m_text, m_plane);
  m_has_corner = true;
  setBox(m_corner_uv);
}

void MTPreviewTracker::setPoint(const OdGePoint3d& point) {
  if (!m_has_corner) return m_text->setLocation(point);
  OdGePoint2d at;
  if (project_on_plane(point, m_view.viewDir(), m_plane, at)) setBox(at);
}

void MTPreviewTracker::setBox(const OdGePoint2d& corner) {
  const auto [left, right] = std::minmax(m_corner_uv.x, corner.x);
  const auto [bottom, top] = std::minmax(m_corner_uv.y, corner.y);
  const OdGePoint2d corners[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
  const OdGeMatrix3d to_object = OdGeMatrix3d::worldToPlane(m_plane.normal());
  for (unsigned i = 0; i < 4; ++i) {
    const OdGePoint3d at = to_object * m_plane.evalPoint(corners[i]);
    m_frame->setPointAt(i, {at.x, at.y});
    m_frame->setElevation(at.z);
  }
  m_text->setLocation(m_plane.evalPoint(corners[0]));
  m_text->setWidth(right - left);
  m_text->setHeight(top - bottom);
}

std::vector<OdGiDrawable*> MTPreviewTracker::drawables() {
  if (!m_frame) return {m_text.get()};
  return {m_text.get(), m_frame.get()};
}
