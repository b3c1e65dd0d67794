#include "host/box_selection.h"

#include <algorithm>

#include "host/pickable_entities.h"
#include "host/primitive_crossing.h"
#include "od/db/OdDbEntity.h"
#include "od/gi/OdGiRecorder.h"

namespace host {
namespace {

OdGeExtents3d flat_box(const HostSelectionRectangle& rectangle) {
  OdGeExtents3d box;
  box.addPoint({rectangle.first.x, rectangle.first.y, 0});
  box.addPoint({rectangle.opposite.x, rectangle.opposite.y, 0});
  return box;
}

bool lies_within(const OdGeExtents3d& inner, const OdGeExtents3d& outer) {
  return inner.minPoint().x >= outer.minPoint().x && inner.maxPoint().x <= outer.maxPoint().x &&
         inner.minPoint().y >= outer.minPoint().y && inner.maxPoint().y <= outer.maxPoint().y;
}

bool are_apart(const OdGeExtents3d& a, const OdGeExtents3d& b) {
  return a.maxPoint().x < b.minPoint().x || a.minPoint().x > b.maxPoint().x ||
         a.maxPoint().y < b.minPoint().y || a.minPoint().y > b.maxPoint().y;
}

bool takes(const OdDbObjectId& id, const OdGeExtents3d& box, bool crossing) {
  const auto entity = odCast<OdDbEntity>(id.openObject());
  OdGeExtents3d own;
  if (entity->getGeomExtents(own) != eOk || !own.isValidExtents()) return false;
  if (lies_within(own, box)) return true;
  if (!crossing || are_apart(own, box)) return false;
  OdGiRecorder recorder;
  recorder.record(*entity);
  return std::any_of(recorder.primitives().begin(), recorder.primitives().end(),
                     [&box](const OdGiPrimitive& each) { return crosses(each, box); });
}

}  // namespace

std::vector<OdDbObjectId> entities_in(const OdDbDatabase& database, const HostSelectionRectangle& rectangle) {
  const OdGeExtents3d box = flat_box(rectangle);
  std::vector<OdDbObjectId> entities = pickable_entities(database);
  std::erase_if(entities, [&](const OdDbObjectId& id) { return !takes(id, box, rectangle.takesCrossing()); });
  return entities;
}

}  // namespace host
