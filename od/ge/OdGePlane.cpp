#include "od/ge/OdGePlane.h"

const OdGePlane OdGePlane::kXYPlane{};

OdGePlane::OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& normal)
    : m_origin(origin), m_u(normal.perpVector()), m_v(normal.normal().crossProduct(m_u)) {}

OdGePoint2d OdGePlane::paramOf(const OdGePoint3d& point) const {
  // Solves point - origin = u * uAxis + v * vAxis in the least squares sense, for axes that may be skew.
  OdGeVector3d d = point - m_origin;
  double uu = m_u.dotProduct(m_u), vv = m_v.dotProduct(m_v), uv = m_u.dotProduct(m_v);
  double du = d.dotProduct(m_u), dv = d.dotProduct(m_v);
  double det = uu * vv - uv * uv;
  if (det == 0) return {};
  return {(du * vv - dv * uv) / det, (dv * uu - du * uv) / det};
}
