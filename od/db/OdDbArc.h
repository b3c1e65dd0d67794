#pragma once

#include "od/db/OdDbEntity.h"

/// A part of a circle, counter-clockwise seen against the normal; the centre is in world coordinates.
class OdDbArc : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbArc)

 public:
  OdDbArc() = default;

  OdGePoint3d center() const;
  void setCenter(const OdGePoint3d& center);
  double radius() const;
  void setRadius(double radius);
  /// Radians from the x axis that the normal gives.
  double startAngle() const;
  void setStartAngle(double angle);
  double endAngle() const;
  void setEndAngle(double angle);
  OdGeVector3d normal() const;
  OdResult getPlane(OdGePlane& plane) const override;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbArcPtr = OdSmartPtr<OdDbArc>;
