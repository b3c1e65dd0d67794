#include "commands/base/locked_layer.h"

#include "od/db/OdDbEntity.h"
#include "od/db/OdDbLayerTableRecord.h"

bool is_on_locked_layer(const OdDbObjectId& id) {
  const auto entity = odCast<OdDbEntity>(id.openObject());
  const OdDbObjectId layer = entity ? entity->layerId() : OdDbObjectId();
  const auto record = layer ? odCast<OdDbLayerTableRecord>(layer.openObject()) : OdDbLayerTableRecordPtr();
  return record && record->isLocked();
}
