#include "host/pickable_entities.h"

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdDbLayerTableRecord.h"

namespace host {
namespace {

OdDbLayerTableRecordPtr layer_of(const OdDbEntity& entity) {
  const OdDbObjectId id = entity.layerId();
  return id ? odCast<OdDbLayerTableRecord>(id.openObject()) : OdDbLayerTableRecordPtr();
}

bool is_thawed(const OdDbObjectId& id) {
  const auto entity = odCast<OdDbEntity>(id.openObject());
  if (!entity || entity->visibility() != OdDb::kVisible) return false;
  const auto layer = layer_of(*entity);
  return !layer || !layer->isFrozen();
}

template <class Condition>
std::vector<OdDbObjectId> entities_that(const OdDbDatabase& database, Condition fits) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  std::vector<OdDbObjectId> entities = space ? space->entities() : std::vector<OdDbObjectId>();
  std::erase_if(entities, [fits](const OdDbObjectId& id) { return !fits(id); });
  return entities;
}

}  // namespace

bool is_pickable(const OdDbObjectId& id) {
  if (!is_thawed(id)) return false;
  const auto layer = layer_of(*odCast<OdDbEntity>(id.openObject()));
  return !layer || !layer->isOff();
}

std::vector<OdDbObjectId> pickable_entities(const OdDbDatabase& database) {
  return entities_that(database, is_pickable);
}

std::vector<OdDbObjectId> thawed_entities(const OdDbDatabase& database) {
  return entities_that(database, is_thawed);
}

}  // namespace host
