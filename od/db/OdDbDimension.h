#pragma once

#include "od/db/OdDbEntity.h"

/// A dimension of any kind. Its picture is a block of its own in the drawing, which is drawn as it stands.
class OdDbDimension : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbDimension)

 public:
  OdDbDimension() = default;

  /// The block with the picture; null when the drawing has none.
  OdDbObjectId dimBlockId() const;
  /// The text that stands in place of the measured one; empty or "<>" means the measured one.
  OdString dimensionText() const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
};

using OdDbDimensionPtr = OdSmartPtr<OdDbDimension>;
