#include "commands/mtext_create.h"
#include "host/application.h"
#include "host/document.h"
#include "host/exports.h"
#include "host/prompt.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbViewport.h"

namespace {

/// Where a new entity goes: through a viewport of the paper one works in the model.
OdDbObjectId target_space(OdDbDatabase& database) {
  const OdDbObjectId active = database.getActiveSpaceId();
  if (active != database.getPaperSpaceId()) return active;
  const OdDbObjectId id = database.activeViewportId();
  const auto viewport = id ? odCast<OdDbViewport>(id.openObject()) : OdDbViewportPtr();
  return viewport && viewport->number() > 1 ? database.getModelSpaceId() : active;
}

}  // namespace

int CMTCreateCmd::run() {
  setStatus(kCommandRunning);
  HostDocument* document = host::application() ? host::application()->activeDocument() : nullptr;
  if (!document) return setStatus(kCommandDone);
  new_mtext_outcome outcome;
  if (newMText(*document, {}, outcome)) {
    const auto space =
        odCastOrThrow<OdDbBlockTableRecord>(target_space(document->database()).openObject(OdDb::kForWrite));
    hostEntUpd(space->appendOdDbEntity(outcome.text.get()));
  }
  return setStatus(outcome.status);
}
