#include "od/ge/OdGeExtents3d.h"

void OdGeExtents3d::transformBy(const OdGeMatrix3d& m) {
  if (!isValidExtents()) return;
  OdGeExtents3d box;
  for (double x : {m_min.x, m_max.x})
    for (double y : {m_min.y, m_max.y})
      for (double z : {m_min.z, m_max.z}) box.addPoint(m * OdGePoint3d{x, y, z});
  *this = box;
}

bool OdGeExtents3d::contains(const OdGePoint3d& p) const {
  return p.x >= m_min.x && p.x <= m_max.x && p.y >= m_min.y && p.y <= m_max.y && p.z >= m_min.z &&
         p.z <= m_max.z;
}
