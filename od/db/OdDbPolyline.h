#pragma once

#include "od/db/OdDbEntity.h"

/// A line of straight and arc segments in one plane. Points are object coordinates of the normal.
class OdDbPolyline : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbPolyline)

 public:
  OdDbPolyline() = default;

  unsigned numVerts() const;
  OdGePoint2d getPointAt(unsigned index) const;
  /// Throws `OdError_InvalidIndex`, as all that take an index.
  void setPointAt(unsigned index, const OdGePoint2d& point);
  /// Tangent of a quarter of the segment's angle, positive counter-clockwise; 0 is straight.
  double getBulgeAt(unsigned index) const;
  void setBulgeAt(unsigned index, double bulge);
  /// Puts a vertex before the one at `index`; at `numVerts()` it becomes the last.
  void addVertexAt(unsigned index, const OdGePoint2d& point, double bulge = 0);

  bool isClosed() const;
  void setClosed(bool closed);
  double elevation() const;
  void setElevation(double elevation);
  OdGeVector3d normal() const;
  void setNormal(const OdGeVector3d& normal);
  OdResult getPlane(OdGePlane& plane) const override;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbPolylinePtr = OdSmartPtr<OdDbPolyline>;
