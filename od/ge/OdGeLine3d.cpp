#include "od/ge/OdGeLine3d.h"

bool OdGeLinearEnt3d::intersectWith(const OdGePlane& plane, OdGePoint3d& at, const OdGeTol& tol) const {
  OdGeVector3d normal = plane.normal();
  double along = m_direction.normal().dotProduct(normal);
  if (!(std::abs(along) > tol.equalVector)) return false;
  at = m_point - m_direction.normal() * (plane.signedDistanceTo(m_point) / along);
  return true;
}
