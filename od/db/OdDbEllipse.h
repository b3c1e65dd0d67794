#pragma once

#include "od/db/OdDbEntity.h"

/// An ellipse or a part of one, in world coordinates.
class OdDbEllipse : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbEllipse)

 public:
  OdDbEllipse() = default;

  OdGePoint3d center() const;
  /// From the centre to the end of the longer axis.
  OdGeVector3d majorAxis() const;
  /// From the centre to the end of the shorter axis, counter-clockwise seen against the normal.
  OdGeVector3d minorAxis() const;
  OdGeVector3d normal() const;
  /// Parameters in radians, which are the angles of the circle that the ellipse was pressed from.
  double startParam() const;
  double endParam() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};
