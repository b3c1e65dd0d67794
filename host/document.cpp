#include "host/document.h"

#include "host/document_data.h"
#include "host/exports.h"
#include "od/db/OdDbObjectId.h"

HostDocument::~HostDocument() { host::tell_document_goes(*this); }

void hostEntUpd(const OdDbObjectId& id) {
  HostDocument* document = host::active_document();
  if (document && &document->database() == id.database()) document->entityChanged(id);
}
