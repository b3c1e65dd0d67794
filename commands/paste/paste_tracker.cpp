#include "commands/paste/paste_tracker.h"

OdGePoint3d dropped_on_plane(const OdGePoint3d& point, const OdGeMatrix3d& to_plane,
                             const OdGeMatrix3d& to_world) {
  OdGePoint3d dropped = to_plane * point;
  dropped.z = 0;
  return to_world * dropped;
}

namespace {

OdDbTextPtr shown_as(const OdDbTextPtr& line, OdDbDatabase& database) {
  if (!line) return {};
  auto shown = odNew<OdDbText>();
  shown->setDatabaseDefaults(&database);
  shown->setLayer(line->layer());
  shown->setColor(line->color());
  shown->setHeight(line->height());
  shown->setWidthFactor(line->widthFactor());
  shown->setOblique(line->oblique());
  shown->setNormal(line->normal());
  shown->setTextString(line->textString());
  return shown;
}

}  // namespace

PasteTracker::PasteTracker(OdDbMTextPtr text, OdDbTextPtr line, const OdGeVector3d& normal,
                           OdDbDatabase& database)
    : m_text(std::move(text)),
      m_line(std::move(line)),
      m_shown_line(shown_as(m_line, database)),
      m_to_plane(OdGeMatrix3d::worldToPlane(normal)),
      m_to_world(OdGeMatrix3d::planeToWorld(normal)) {}

void PasteTracker::setPoint(const OdGePoint3d& point) {
  const OdGePoint3d at = dropped_on_plane(point, m_to_plane, m_to_world);
  if (m_text) m_text->setLocation(at);
  if (!m_line) return;
  m_line->setPosition(at);
  m_shown_line->setPosition(at);
}

std::vector<OdGiDrawable*> PasteTracker::drawables() {
  if (m_text) return {m_text.get()};
  return {m_shown_line.get()};
}
