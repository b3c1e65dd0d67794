#include "commands/multi_line/text_to_mtext_command.h"

#include "commands/base/selected_texts.h"
#include "commands/multi_line/merge_texts.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"

namespace {

constexpr int kMergeFailed = 1071;

void replace_texts(HostDocument& document, OdDbBlockTableRecord& space, std::vector<OdDbTextPtr>& texts) {
  sort_in_reading_order(texts);
  auto merged = odNew<OdDbMText>();
  merged->setDatabaseDefaults(&document.database());
  if (!merge_texts(texts, *merged)) {
    document.prompt().refuse(host::resource_string(kMergeFailed));
    return;
  }
  for (const OdDbTextPtr& text : texts) {
    text->erase();
    document.entityChanged(text->objectId());
  }
  document.entityChanged(space.appendOdDbEntity(merged.get()));
}

}  // namespace

int CText2MTextCmd::runIn(HostDocument& document) {
  const auto space = editing::open_current_space(document.database());
  const auto selected = ask_for_texts(document);
  if (!selected) return kCommandCancelled;
  selected_texts texts = open_texts(*selected);
  if (texts.single_line.empty())
    refuse_without_texts(document);
  else
    replace_texts(document, *space, texts.single_line);
  return kCommandDone;
}
