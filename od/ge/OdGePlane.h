#pragma once

#include "od/ge/OdGePoint2d.h"
#include "od/ge/OdGePoint3d.h"

/// A surface with two parameters.
class OdGeSurface {
 public:
  virtual ~OdGeSurface() = default;
  /// The parameters (u, v) of the surface's point that `point` is nearest to.
  virtual OdGePoint2d paramOf(const OdGePoint3d& point) const = 0;
};

/// A plane with an origin and two axes in it, which need not have length 1.
class OdGePlane : public OdGeSurface {
 public:
  /// The plane of the world's X and Y axes.
  OdGePlane() = default;
  /// Axes by the arbitrary axis algorithm.
  OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& normal);
  OdGePlane(const OdGePoint3d& origin, const OdGeVector3d& uAxis, const OdGeVector3d& vAxis)
      : m_origin(origin), m_u(uAxis), m_v(vAxis) {}

  static const OdGePlane kXYPlane;

  const OdGePoint3d& origin() const { return m_origin; }
  const OdGeVector3d& uAxis() const { return m_u; }
  const OdGeVector3d& vAxis() const { return m_v; }
  /// Length 1, at right angles to both axes.
  OdGeVector3d normal() const { return m_u.crossProduct(m_v).normal(); }

  OdGePoint2d paramOf(const OdGePoint3d& point) const override;
  /// The point of the plane at the parameters.
  OdGePoint3d evalPoint(const OdGePoint2d& param) const { return m_origin + m_u * param.x + m_v * param.y; }
  double signedDistanceTo(const OdGePoint3d& point) const { return (point - m_origin).dotProduct(normal()); }

 private:
  OdGePoint3d m_origin;
  OdGeVector3d m_u{1, 0, 0};
  OdGeVector3d m_v{0, 1, 0};
};
