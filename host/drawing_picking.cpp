#include "host/drawing_picking.h"

#include "host/entity_hit.h"
#include "host/pickable_entities.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbEntity.h"

namespace {

bool is_hit(const OdDbObjectId& id, const OdGePoint3d& point, double aperture) {
  const OdDbEntityPtr entity = odCast<OdDbEntity>(id.openObject());
  return host::is_pickable(id) && host::hits_entity(*entity, point, aperture);
}

}  // namespace

OdDbObjectId HostDrawingPicking::pick(const OdGePoint3d& point, double aperture) const {
  const auto space = odCast<OdDbBlockTableRecord>(m_database.getActiveSpaceId().openObject());
  if (!space) return {};
  const std::vector<OdDbObjectId> entities = space->entities();
  for (auto at = entities.rbegin(); at != entities.rend(); ++at) {
    if (is_hit(*at, point, aperture)) return *at;
  }
  return {};
}
