#include "commands/edit/edit_text.h"

#include "commands/base/locked_layer.h"
#include "commands/edit/attribute_dialog.h"
#include "commands/multi_line/mtext_edit.h"
#include "editor/smart_edit.h"
#include "host/document.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbAttributeDefinition.h"

namespace {

constexpr int kNoEntity = 1028;
constexpr int kNoText = 1029;
constexpr int kTypeInPlace = 1030;
constexpr unsigned kTypeFlags = kReadOnlyWaits | kReadMayBeEmpty | kReadWholeLine;

/// A text of one line; a session of one line would take the others from an attribute of several.
OdDbTextPtr single_line(const OdDbEntityPtr& entity) {
  const auto attribute = odCast<OdDbAttribute>(entity);
  return attribute && attribute->isMTextAttribute() ? OdDbTextPtr() : odCast<OdDbText>(entity);
}

}  // namespace

int editText(const OdDbTextPtr& text, HostDocument& document) {
  text->upgradeOpen();
  smart_edit session(document);
  session.beginTextEdit(text);
  const int answer = document.prompt().read_input(host::resource_string(kTypeInPlace), u"", kTypeFlags);
  session.finishEdit(/*accept=*/answer == kAnswerValue, /*force=*/false);
  text->downgradeOpen();
  return answer;
}

void edit_any_text(HostDocument& document, const OdDbObjectId& id,
                   const std::optional<OdGePoint3d>& pressed) {
  const auto entity = odCast<OdDbEntity>(id.isErased() ? OdDbObjectPtr() : id.openObject());
  if (!entity) return document.prompt().refuse(host::resource_string(kNoEntity));
  if (is_on_locked_layer(id)) return document.prompt().refuse(Supp_Translate(u"Layer locked"));
  if (odCast<OdDbAttributeDefinition>(entity)) return show_attribute_dialog(id);
  if (const auto line = single_line(entity)) {
    editText(line, document);
  } else if (odCast<OdDbMText>(entity)) {
    editMTextById(id, document, pressed);
  } else {
    document.prompt().refuse(host::resource_string(kNoText));
  }
}
