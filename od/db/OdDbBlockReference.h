#pragma once

#include <vector>

#include "od/db/OdDbEntity.h"

/// An insert of a block: its entities drawn at a place, in a size and direction, once or in rows and columns.
class OdDbBlockReference : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbBlockReference)

 public:
  OdDbBlockReference() = default;

  OdString blockName() const;
  /// The block's record; null when the drawing has no such block.
  OdDbObjectId blockTableRecord() const;
  void setBlockTableRecord(OdDbObjectId block);

  OdGePoint3d position() const;
  void setPosition(const OdGePoint3d& position);
  /// Factors along x, y and z, which may differ and be negative.
  OdGeVector3d scaleFactors() const;
  void setScaleFactors(const OdGeVector3d& scale);
  double rotation() const;
  void setRotation(double angle);
  OdGeVector3d normal() const;
  int columns() const;
  int rows() const;
  double columnSpacing() const;
  double rowSpacing() const;

  /// The texts that belong to this insert, in file order.
  std::vector<OdDbObjectId> attributes() const;
  /// From the block to the world: its base point comes to the position.
  OdGeMatrix3d blockTransform() const;
  /// The same for one cell of the array.
  OdGeMatrix3d blockTransform(int column, int row) const;

 protected:
  void drawGeometry(OdGiWorldDraw& draw) const override;
  std::unique_ptr<dxf::Record> newRecord() const override;
};

using OdDbBlockReferencePtr = OdSmartPtr<OdDbBlockReference>;
