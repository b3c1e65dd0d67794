#include "host/pickable_entities.h"

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdDbLayerTableRecord.h"

namespace host {
namespace {

bool is_on_shown_layer(const OdDbEntity& entity) {
  const OdDbObjectId id = entity.layerId();
  const auto layer = id ? odCast<OdDbLayerTableRecord>(id.openObject()) : OdDbLayerTableRecordPtr();
  return !layer || !(layer->isOff() || layer->isFrozen());
}

}  // namespace

bool is_pickable(const OdDbObjectId& id) {
  const auto entity = odCast<OdDbEntity>(id.openObject());
  return entity && entity->visibility() == OdDb::kVisible && is_on_shown_layer(*entity);
}

std::vector<OdDbObjectId> pickable_entities(const OdDbDatabase& database) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  std::vector<OdDbObjectId> entities = space ? space->entities() : std::vector<OdDbObjectId>();
  std::erase_if(entities, [](const OdDbObjectId& id) { return !is_pickable(id); });
  return entities;
}

}  // namespace host
