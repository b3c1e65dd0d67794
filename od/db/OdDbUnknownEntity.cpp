#include "od/db/OdDbUnknownEntity.h"

ODRX_DEFINE_MEMBERS(OdDbUnknownEntity, OdDbEntity, "")

OdString OdDbUnknownEntity::originalDxfName() const {
  assertReadEnabled();
  return odToUtf16(record().type());
}
