#pragma once

#include "od/db/OdDbEntity.h"

/// A straight segment in world coordinates.
class OdDbLine : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbLine)

 public:
  OdDbLine();
  OdDbLine(const OdGePoint3d& start, const OdGePoint3d& end);

  OdGePoint3d startPoint() const;
  void setStartPoint(const OdGePoint3d& point);
  OdGePoint3d endPoint() const;
  void setEndPoint(const OdGePoint3d& point);

 protected:
  bool drawGeometry(OdGiWorldDraw& draw) const override;
};

using OdDbLinePtr = OdSmartPtr<OdDbLine>;
