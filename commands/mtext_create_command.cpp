#include "commands/mtext_create.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"

int CMTCreateCmd::runIn(HostDocument& document) {
  new_mtext_outcome outcome;
  if (newMText(document, {}, outcome)) {
    const OdDbObjectId target = editing::current_space(document.database());
    const auto space = odCastOrThrow<OdDbBlockTableRecord>(target.openObject(OdDb::kForWrite));
    const OdDbObjectId made = space->appendOdDbEntity(outcome.text.get());
    if (outcome.field) outcome.text->setField(u"TEXT", *outcome.field);
    hostEntUpd(made);
  }
  return outcome.status;
}
