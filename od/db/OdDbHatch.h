#pragma once

#include "od/db/OdDbEntity.h"

/// A filled or patterned area. A solid one is drawn filled, of a patterned one the edges alone.
class OdDbHatch : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbHatch)

 public:
  OdDbHatch() = default;

  OdString patternName() const;
  bool isSolidFill() const;
  OdGeVector3d normal() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
