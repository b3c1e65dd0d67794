#include "commands/letter_case/tcase_command.h"

#include "commands/base/selected_texts.h"
#include "commands/base/text_codes.h"
#include "commands/letter_case/case_of_contents.h"
#include "editor/current_space.h"
#include "host/document.h"
#include "host/keyword_list.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbDatabase.h"
#include "ui/dialogs/CCaseDlg.h"
#include "ui/dialogs/dialog_display.h"

namespace {

constexpr int kPrompt = 1340;
constexpr int kKeywords = 1346;  // in the order of CCaseDlg::kChoices

/// Asks at the prompt; Enter takes the mode that the dialog would show.
bool ask_at_prompt(HostEdPrompt& prompt, CCaseDlg& dialog) {
  const std::u16string keywords = host::resource_string(kKeywords);
  const auto last = static_cast<std::size_t>(dialog.mode());
  const int answer = prompt.getKeyword({.prompt = host::resource_string(kPrompt),
                                        .keywords = keywords,
                                        .default_answer = HostKeywordList(keywords).name(last)});
  if (answer < 0) return false;
  dialog.check(CCaseDlg::kChoices.at(static_cast<std::size_t>(answer)));
  return true;
}

/// The mode that was chosen last, in whatever drawing; it lives as long as the program.
case_mode& last_mode() {
  static case_mode mode = case_mode::sentence;
  return mode;
}

/// Lets the user choose a mode: in the dialog, or at the prompt where nobody can see one. False for cancel.
bool choose_mode(HostEdPrompt& prompt) {
  CCaseDlg dialog(static_cast<int>(last_mode()));
  const DialogDisplay* display = dialogs::display();
  const bool in_window = display && display->canShow();
  if (!(in_window ? dialog.doModal() : ask_at_prompt(prompt, dialog))) return false;
  last_mode() = static_cast<case_mode>(dialog.mode());
  return true;
}

void change_case(OdDbText& text, case_mode mode) { set_codes(text, case_of_line(codes_of(text), mode)); }

void change_case(OdDbMText& text, case_mode mode) {
  const mtext::mtext_size_finder finder{OdDbDatabasePtr(text.database())};
  set_codes(text, case_of_contents(codes_of(text), text.textHeight(), mode, finder,
                                   mtext::marks::default_letters()));
}

template <class Text>
void change_all(HostDocument& document, const std::vector<OdSmartPtr<Text>>& texts, case_mode mode) {
  for (const auto& text : texts) {
    change_case(*text, mode);
    document.entityChanged(text->objectId());
  }
}

}  // namespace

int CTCase::runIn(HostDocument& document) {
  editing::open_current_space(document.database());  // throws where there is none
  const auto texts = ask_and_open_texts(document);
  if (!texts) return kCommandCancelled;
  if (texts->empty()) return kCommandDone;
  if (!choose_mode(document.prompt())) return kCommandCancelled;
  change_all(document, texts->single_line, last_mode());
  change_all(document, texts->multi_line, last_mode());
  return kCommandDone;
}
