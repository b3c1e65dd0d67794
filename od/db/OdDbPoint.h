#pragma once

#include "od/db/OdDbEntity.h"

/// A point, drawn as a dot.
class OdDbPoint : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbPoint)

 public:
  OdDbPoint() = default;

  OdGePoint3d position() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
