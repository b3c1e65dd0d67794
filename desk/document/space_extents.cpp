#include "desk/document/space_extents.h"

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdGiContextForDbDatabase.h"

OdGeExtents3d spaceExtents(OdDbDatabase& database) {
  OdGeExtents3d all;
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  if (!space) return all;
  const OdGiContextForDbDatabase context(&database);
  for (const OdDbObjectId& id : space->entities()) {
    const auto entity = odCast<OdDbEntity>(id.openObject());
    OdGeExtents3d box;
    const bool shown =
        entity && entity->visibility() == OdDb::kVisible && context.layerIsVisible(entity->layer());
    if (shown && entity->getGeomExtents(box) == eOk) all.addExt(box);
  }
  return all;
}
