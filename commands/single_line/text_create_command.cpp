#include "commands/single_line/text_create_command.h"

#include "commands/single_line/new_text.h"
#include "commands/single_line/new_text_questions.h"
#include "commands/single_line/text_lines.h"

int CTextCreateCmd::runIn(HostDocument& document) {
  new_text_settings settings = settings_for(document, /*remembered=*/m_in_place);
  if (!ask_new_text(document, settings)) return kCommandCancelled;
  return m_in_place ? create_in_place(document, settings) : create_typed(document, settings);
}
