#include "host/rubber_line.h"

#include "od/gi/OdGiGeometry.h"

bool HostRubberLine::worldDraw(OdGiWorldDraw& draw) {
  draw.geometry().polyline({m_from, m_to});
  return true;
}
