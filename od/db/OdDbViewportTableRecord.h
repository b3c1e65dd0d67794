#pragma once

#include "od/db/OdDbSymbolTableRecord.h"
#include "od/ge/OdGePoint2d.h"
#include "od/ge/OdGePoint3d.h"

/// A tiled view of the model. The first one named "*Active" is the current one.
class OdDbViewportTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbViewportTableRecord)

 public:
  OdDbViewportTableRecord() = default;

  /// Centre of the view in its own plane.
  OdGePoint2d centerPoint() const;
  /// What the view shows, in drawing units.
  double height() const;
  double width() const;
  OdGePoint3d target() const;
  /// From the target to the eye.
  OdGeVector3d viewDirection() const;
  /// Radians.
  double viewTwist() const;

 protected:
  std::unique_ptr<dxf::Record> newRecord() const override;
  const OdDbSubclass& ownPart() const override;
};

using OdDbViewportTableRecordPtr = OdSmartPtr<OdDbViewportTableRecord>;
