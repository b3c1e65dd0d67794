#pragma once

#include "od/ge/OdGePlane.h"

/// A line, ray or segment.
class OdGeLinearEnt3d {
 public:
  virtual ~OdGeLinearEnt3d() = default;

  const OdGePoint3d& pointOnLine() const { return m_point; }
  const OdGeVector3d& direction() const { return m_direction; }

  /// Finds where the line goes through `plane`. False when it runs along the plane within the tolerance; `at`
  /// is then left alone.
  bool intersectWith(const OdGePlane& plane, OdGePoint3d& at, const OdGeTol& tol = OdGeContext::gTol) const;

 protected:
  OdGeLinearEnt3d(const OdGePoint3d& point, const OdGeVector3d& direction)
      : m_point(point), m_direction(direction) {}

 private:
  OdGePoint3d m_point;
  OdGeVector3d m_direction;
};

/// A line without ends through a point along a direction.
class OdGeLine3d : public OdGeLinearEnt3d {
 public:
  OdGeLine3d(const OdGePoint3d& point, const OdGeVector3d& direction) : OdGeLinearEnt3d(point, direction) {}
};
