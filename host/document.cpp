#include "host/document.h"

#include "host/application.h"
#include "host/exports.h"
#include "od/db/OdDbObjectId.h"

void hostEntUpd(const OdDbObjectId& id) {
  HostApplication* application = host::application();
  HostDocument* document = application ? application->activeDocument() : nullptr;
  if (document && &document->database() == id.database()) document->entityChanged(id);
}
