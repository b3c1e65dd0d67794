#pragma once

#include "od/db/OdDbEntity.h"

/// A polyline in the old form, whose vertices are records of their own: flat with arcs, in space, or a mesh.
class OdDb2dPolyline : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDb2dPolyline)

 public:
  OdDb2dPolyline() = default;

  bool isClosed() const;
  /// True when the vertices are points of the world.
  bool isIn3d() const;
  /// True for the meshes, which are kept and not drawn.
  bool isMesh() const;
  OdGeVector3d normal() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
