#pragma once

#include <vector>

#include "od/db/OdDbEntity.h"

/// A line that leads from a note to what it is about. Its arrow head is not drawn.
class OdDbLeader : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbLeader)

 public:
  OdDbLeader() = default;

  std::vector<OdGePoint3d> vertices() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
