#include "od/ge/OdGeMatrix3d.h"

#include "od/base/OdError.h"
#include "od/ge/OdGePlane.h"

const OdGeMatrix3d OdGeMatrix3d::kIdentity{};

OdGeMatrix3d OdGeMatrix3d::translation(const OdGeVector3d& by) {
  return coordSystem(OdGePoint3d{} + by, OdGeVector3d::kXAxis, OdGeVector3d::kYAxis, OdGeVector3d::kZAxis);
}

OdGeMatrix3d OdGeMatrix3d::rotation(double angle, const OdGeVector3d& axis, const OdGePoint3d& center) {
  OdGeMatrix3d turn =
      coordSystem({}, OdGeVector3d::kXAxis.rotatedBy(angle, axis),
                  OdGeVector3d::kYAxis.rotatedBy(angle, axis), OdGeVector3d::kZAxis.rotatedBy(angle, axis));
  return translation(center.asVector()) * turn * translation(-center.asVector());
}

OdGeMatrix3d OdGeMatrix3d::scaling(double factor, const OdGePoint3d& center) {
  return translation(center.asVector()) * scaling(factor, factor, factor) * translation(-center.asVector());
}

OdGeMatrix3d OdGeMatrix3d::scaling(double x, double y, double z) {
  return coordSystem({}, {x, 0, 0}, {0, y, 0}, {0, 0, z});
}

OdGeMatrix3d OdGeMatrix3d::coordSystem(const OdGePoint3d& origin, const OdGeVector3d& x,
                                       const OdGeVector3d& y, const OdGeVector3d& z) {
  OdGeMatrix3d m;
  m.m_entry = {x.x, y.x, z.x, origin.x, x.y, y.y, z.y, origin.y, x.z, y.z, z.z, origin.z, 0, 0, 0, 1};
  return m;
}

OdGeMatrix3d OdGeMatrix3d::planeToWorld(const OdGePlane& plane) {
  return coordSystem(plane.origin(), plane.uAxis(), plane.vAxis(), plane.normal());
}

OdGeMatrix3d OdGeMatrix3d::planeToWorld(const OdGeVector3d& normal) {
  return planeToWorld(OdGePlane({}, normal));
}

OdGeMatrix3d OdGeMatrix3d::worldToPlane(const OdGePlane& plane) { return planeToWorld(plane).inverse(); }

OdGeMatrix3d OdGeMatrix3d::worldToPlane(const OdGeVector3d& normal) { return planeToWorld(normal).inverse(); }

double OdGeMatrix3d::det() const { return xAxis().crossProduct(yAxis()).dotProduct(zAxis()); }

OdGeMatrix3d OdGeMatrix3d::inverse() const {
  double d = det();
  if (d == 0 || !std::isfinite(d)) throw OdError(eDegenerateGeometry);
  OdGeVector3d row0 = yAxis().crossProduct(zAxis()) / d;
  OdGeVector3d row1 = zAxis().crossProduct(xAxis()) / d;
  OdGeVector3d row2 = xAxis().crossProduct(yAxis()) / d;
  OdGeVector3d o = origin().asVector();
  OdGePoint3d back{-row0.dotProduct(o), -row1.dotProduct(o), -row2.dotProduct(o)};
  return coordSystem(back, {row0.x, row1.x, row2.x}, {row0.y, row1.y, row2.y}, {row0.z, row1.z, row2.z});
}

bool OdGeMatrix3d::isEqualTo(const OdGeMatrix3d& other, const OdGeTol& tol) const {
  for (std::size_t i = 0; i < m_entry.size(); ++i)
    if (!(std::abs(m_entry[i] - other.m_entry[i]) <= tol.equalPoint)) return false;
  return true;
}

OdGeMatrix3d operator*(const OdGeMatrix3d& a, const OdGeMatrix3d& b) {
  return OdGeMatrix3d::coordSystem(a * b.origin(), a * b.xAxis(), a * b.yAxis(), a * b.zAxis());
}

OdGePoint3d operator*(const OdGeMatrix3d& m, const OdGePoint3d& p) { return m.origin() + m * p.asVector(); }

OdGeVector3d operator*(const OdGeMatrix3d& m, const OdGeVector3d& v) {
  return m.xAxis() * v.x + m.yAxis() * v.y + m.zAxis() * v.z;
}
