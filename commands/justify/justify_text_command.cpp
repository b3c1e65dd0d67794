#include "commands/justify/justify_text_command.h"

#include "commands/base/selected_texts.h"
#include "commands/justify/justification_prompt.h"
#include "commands/justify/justify_rows.h"
#include "editor/text_justify.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"

namespace {

constexpr int kSelectPrompt = 1032;
/// Mode flags of the selection: what was selected before counts at first alone.
constexpr unsigned kFirstPass = 0x8000;
constexpr unsigned kLaterPass = 0xC000;

/// Asks until a text is among what was selected; the answer that gave no selection, else `kAnswerValue`.
int select_texts(HostDocument& document, selected_texts& texts) {
  const std::u16string prompt = host::resource_string(kSelectPrompt);
  for (unsigned flags = kFirstPass; texts.empty(); flags = kLaterPass) {
    HostSelectionSet picked;
    const int answer = document.prompt().select(prompt, flags, picked);
    if (answer != kAnswerValue) return answer;
    texts = open_texts(without_locked(picked, document.prompt()));
  }
  return kAnswerValue;
}

void justify(HostDocument& document, const selected_texts& texts, const justify_row& to) {
  for (const OdDbTextPtr& text : texts.single_line) {
    ApplyTextJustify(text, to.horizontal, to.vertical);
    document.entityChanged(text->objectId());
  }
  for (const OdDbMTextPtr& text : texts.multi_line) {
    text->setAttachmentMovingLocation(to.attachment);
    document.entityChanged(text->objectId());
  }
}

}  // namespace

int CJustifyTextCmd::runIn(HostDocument& document) {
  selected_texts texts;
  const int answer = select_texts(document, texts);
  if (answer != kAnswerValue) return answer == kAnswerCancel ? kCommandCancelled : kCommandDone;
  const int keyword = ask_justification(document.prompt());
  if (keyword >= 0) justify(document, texts, justify_rows()[static_cast<std::size_t>(keyword)]);
  return kCommandDone;
}
