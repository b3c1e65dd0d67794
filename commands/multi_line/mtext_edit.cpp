#include "commands/multi_line/mtext_edit.h"

#include "commands/base/locked_layer.h"
#include "commands/multi_line/session_loop.h"
#include "editor/smart_edit.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "host/translate.h"

namespace {

constexpr int kSelectPrompt = 1035;
constexpr int kNothingSelected = 1036;
constexpr int kNotMText = 1037;

}  // namespace

int editMText(OdDbMTextPtr text, HostDocument& document, const std::optional<OdGePoint3d>& caret_at) {
  smart_edit session(document);
  session.beginMTextEdit(text, {.caret_at = caret_at});
  const int result = wait_for_session(document.prompt(), session);
  const bool accepted = session.finishEdit(result == kSessionAccepted, /*force=*/session.isCompact());
  return accepted ? kCommandDone : kCommandCancelled;
}

int editMTextById(const OdDbObjectId& id, HostDocument& document,
                  const std::optional<OdGePoint3d>& caret_at) {
  const auto text = odCast<OdDbMText>(id.openObject(OdDb::kForWrite));
  if (text) return editMText(text, document, caret_at);
  document.prompt().refuse(host::resource_string(kNotMText));
  return kCommandDone;
}

int CMTextEditCmd::runIn(HostDocument& document) {
  HostSelectionSet selected = document.pickFirst();
  if (selected.isEmpty()) {
    const int answer = document.prompt().select(host::resource_string(kSelectPrompt), kSelectOne, selected);
    if (answer == kAnswerCancel) return kCommandCancelled;
  }
  if (selected.isEmpty()) {
    document.prompt().refuse(host::resource_string(kNothingSelected));
    return kCommandDone;
  }
  const OdDbObjectId id = selected.ids().front();
  if (is_on_locked_layer(id)) {
    document.prompt().refuse(Supp_Translate(u"Layer locked"));
    return kCommandDone;
  }
  return editMTextById(id, document, selected.pressed());
}
