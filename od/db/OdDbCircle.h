#pragma once

#include "od/db/OdDbEntity.h"

/// A full circle; the centre is in world coordinates.
class OdDbCircle : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbCircle)

 public:
  OdDbCircle() = default;
  OdDbCircle(const OdGePoint3d& center, double radius);

  OdGePoint3d center() const;
  void setCenter(const OdGePoint3d& center);
  double radius() const;
  void setRadius(double radius);
  OdGeVector3d normal() const;
  OdResult getPlane(OdGePlane& plane) const override;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbCirclePtr = OdSmartPtr<OdDbCircle>;
