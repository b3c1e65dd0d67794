#include "host/pickable_entities.h"

#include <algorithm>

#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdDbLayerTableRecord.h"

namespace host {
namespace {

/// An entity as far as it matters whether it is seen, with one look at its layer.
struct seen_entity {
  bool visible = false;
  OdDbLayerTableRecordPtr layer;  ///< null where the drawing has no such layer

  explicit seen_entity(const OdDbObjectId& id) {
    const auto entity = odCast<OdDbEntity>(id.openObject());
    visible = entity && entity->visibility() == OdDb::kVisible;
    const OdDbObjectId layer_id = visible ? entity->layerId() : OdDbObjectId();
    if (layer_id) layer = odCast<OdDbLayerTableRecord>(layer_id.openObject());
  }

  bool isThawed() const { return visible && !(layer && layer->isFrozen()); }
  bool isPickable() const { return isThawed() && !(layer && layer->isOff()); }
};

std::vector<OdDbObjectId> entities_of(const OdDbDatabase& database) {
  const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject());
  return space ? space->entities() : std::vector<OdDbObjectId>();
}

template <class Condition>
std::vector<OdDbObjectId> entities_that(const OdDbDatabase& database, Condition fits) {
  std::vector<OdDbObjectId> entities = entities_of(database);
  std::erase_if(entities, [fits](const OdDbObjectId& id) { return !fits(id); });
  return entities;
}

}  // namespace

bool is_pickable(const OdDbObjectId& id) { return seen_entity(id).isPickable(); }

OdDbObjectId newest_pickable_entity(const OdDbDatabase& database) {
  const std::vector<OdDbObjectId> entities = entities_of(database);
  const auto newest = std::find_if(entities.rbegin(), entities.rend(), is_pickable);
  return newest == entities.rend() ? OdDbObjectId() : *newest;
}

std::vector<OdDbObjectId> pickable_entities(const OdDbDatabase& database) {
  return entities_that(database, is_pickable);
}

std::vector<OdDbObjectId> thawed_entities(const OdDbDatabase& database) {
  return entities_that(database, [](const OdDbObjectId& id) { return seen_entity(id).isThawed(); });
}

}  // namespace host
