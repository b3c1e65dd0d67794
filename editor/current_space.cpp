#include "editor/current_space.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbViewport.h"

namespace editing {

OdDbObjectId current_space(const OdDbDatabase& database) {
  const OdDbObjectId active = database.getActiveSpaceId();
  if (active != database.getPaperSpaceId()) return active;
  const OdDbObjectId id = database.activeViewportId();
  const auto viewport = id ? odCast<OdDbViewport>(id.openObject()) : OdDbViewportPtr();
  return viewport && viewport->number() > 1 ? database.getModelSpaceId() : active;
}

OdDbBlockTableRecordPtr open_current_space(const OdDbDatabase& database, OdDb::OpenMode mode) {
  return odCastOrThrow<OdDbBlockTableRecord>(current_space(database).openObject(mode));
}

}  // namespace editing
