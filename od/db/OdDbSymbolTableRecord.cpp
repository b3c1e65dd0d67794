#include "od/db/OdDbSymbolTableRecord.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdDbSymbolTableRecord, OdDbObject)

OdString OdDbSymbolTableRecord::getName() const { return groups(ownPart()).string(2); }
