#include "od/db/OdDbUnknownObject.h"

ODRX_DEFINE_MEMBERS(OdDbUnknownObject, OdDbObject, "")

OdString OdDbUnknownObject::originalDxfName() const {
  assertReadEnabled();
  return odToUtf16(record().type());
}
