#include "commands/justify/tjust_command.h"

#include "commands/base/selected_texts.h"
#include "commands/justify/justify_in_place.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/db/OdDbDatabase.h"

namespace {

constexpr int kKeywords = 1085;
constexpr int kSelectJustification = 1090;

void justify_all(HostDocument& document, const selected_texts& texts, const justify_row& to) {
  for (const OdDbTextPtr& text : texts.single_line) {
    justify_in_place(*text, to);
    document.entityChanged(text->objectId());
  }
  for (const OdDbMTextPtr& text : texts.multi_line) {
    justify_in_place(*text, to);
    document.entityChanged(text->objectId());
  }
}

}  // namespace

int CJust::runIn(HostDocument& document) {
  editing::open_current_space(document.database());  // throws where there is none
  const auto texts = ask_and_open_texts(document);
  if (!texts) return kCommandCancelled;
  if (texts->empty()) return kCommandDone;
  const int keyword = document.prompt().getKeyword({.prompt = host::resource_string(kSelectJustification),
                                                    .keywords = host::resource_string(kKeywords),
                                                    .may_be_empty = true});
  if (keyword >= 0) justify_all(document, *texts, justification_at(keyword));
  return kCommandDone;
}
