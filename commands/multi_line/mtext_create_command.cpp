#include "commands/multi_line/mtext_create.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "od/db/OdDbDatabase.h"

int CMTCreateCmd::runIn(HostDocument& document) {
  new_mtext_outcome outcome;
  if (newMText(document, {}, outcome)) {
    const auto space = editing::open_current_space(document.database());
    const OdDbObjectId made = space->appendOdDbEntity(outcome.text.get());
    if (outcome.field) outcome.text->setField(OdDbField::kTextKey, *outcome.field);
    hostEntUpd(made);
  }
  return outcome.status;
}
