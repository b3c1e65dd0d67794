#include "od/db/OdDbDimension.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/block_drawing.h"

ODRX_DEFINE_MEMBERS(OdDbDimension, OdDbEntity, "DIMENSION")

namespace {

const OdDbSubclass kDimension{"AcDbDimension", {}};

}  // namespace

OdDbObjectId OdDbDimension::dimBlockId() const {
  const auto table =
      database() ? odOpen<OdDbSymbolTable>(database()->getBlockTableId()) : OdDbSymbolTablePtr();
  return table ? table->getAt(groups(kDimension).string(2)) : OdDbObjectId();
}

OdString OdDbDimension::dimensionText() const { return groups(kDimension).string(1); }

void OdDbDimension::drawGeometry(OdGiWorldDraw& draw) const {
  OdDbBlockDrawing(draw).drawBlock(dimBlockId());
}
