#include "commands/edit/text_edit_command.h"

#include <utility>

#include "commands/edit/edit_text.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"

namespace {

constexpr int kSelectText = 1026;
constexpr int kNothingSelected = 1027;
constexpr unsigned kSelectFlags = kSelectAttributes | 0x1A000;
static_assert(kSelectFlags & kSelectSingle);

/// What was selected before, else what is picked now; the answer that gave none, else `kAnswerValue`.
int select_text(HostDocument& document, HostSelectionSet& selected) {
  selected = std::exchange(document.pickFirst(), HostSelectionSet());
  if (!selected.isEmpty()) return kAnswerValue;
  return document.prompt().select(host::resource_string(kSelectText), kSelectFlags, selected);
}

int status_of(int answer) { return answer == kAnswerCancel ? kCommandCancelled : kCommandDone; }

void edit_first(HostDocument& document, const HostSelectionSet& selected) {
  if (selected.isEmpty()) return document.prompt().message(host::resource_string(kNothingSelected));
  edit_any_text(document, selected.ids().front(), selected.pressed());
}

}  // namespace

int CTextEditCmd::runIn(HostDocument& document) {
  HostSelectionSet selected;
  for (;;) {
    const int answer = select_text(document, selected);
    if (answer != kAnswerValue) return status_of(answer);
    edit_first(document, selected);
  }
}

int COneTextEditCmd::runIn(HostDocument& document) {
  HostSelectionSet selected;
  const int answer = select_text(document, selected);
  if (answer != kAnswerValue) return status_of(answer);
  edit_first(document, selected);
  return kCommandDone;
}
