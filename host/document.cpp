#include "host/document.h"

#include "host/exports.h"
#include "od/db/OdDbObjectId.h"

void hostEntUpd(const OdDbObjectId& id) {
  HostDocument* document = host::active_document();
  if (document && &document->database() == id.database()) document->entityChanged(id);
}
