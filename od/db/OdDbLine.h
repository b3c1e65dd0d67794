#pragma once

#include "od/db/OdDbEntity.h"

/// A straight segment in world coordinates.
class OdDbLine : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbLine)

 public:
  OdDbLine() = default;
  OdDbLine(const OdGePoint3d& start, const OdGePoint3d& end);

  OdGePoint3d startPoint() const;
  void setStartPoint(const OdGePoint3d& point);
  OdGePoint3d endPoint() const;
  void setEndPoint(const OdGePoint3d& point);

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbLinePtr = OdSmartPtr<OdDbLine>;
