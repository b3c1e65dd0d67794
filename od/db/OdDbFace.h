#pragma once

#include "od/db/OdDbEntity.h"

/// A triangle or quadrangle in space, shown by its edges.
class OdDbFace : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbFace)

 public:
  OdDbFace() = default;

  /// The corner at `index`, 0 to 3, in the world; throws `OdError_InvalidIndex`.
  OdGePoint3d getVertexAt(int index) const;
  /// False for an edge that is hidden; the edge at `index` runs from that corner to the next.
  bool isEdgeVisibleAt(int index) const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
