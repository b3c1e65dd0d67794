#pragma once

#include <vector>

#include "od/db/OdDbEntity.h"

/// A smooth curve, by control points and knots or by the points it runs through. In world coordinates.
class OdDbSpline : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbSpline)

 public:
  OdDbSpline() = default;

  int degree() const;
  std::vector<OdGePoint3d> controlPoints() const;
  std::vector<OdGePoint3d> fitPoints() const;
  /// Points on the curve, close enough to each other to be joined by lines. Where control points and knots do
  /// not fit together: the fit points, or else the control points themselves.
  std::vector<OdGePoint3d> samples() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
