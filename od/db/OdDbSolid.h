#pragma once

#include "od/db/OdDbEntity.h"

/// A filled triangle or quadrangle. Files name its corners in the order of a Z.
class OdDbSolid : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbSolid)

 public:
  OdDbSolid() = default;

  /// The corner at `index`, 0 to 3, in file order and in the world; throws `OdError_InvalidIndex`.
  OdGePoint3d getPointAt(int index) const;
  OdGeVector3d normal() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
