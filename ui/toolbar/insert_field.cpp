#include "ui/toolbar/insert_field.h"

#include "editor/smart_edit.h"
#include "host/field_service.h"
#include "ui/toolbar/CMTextEdit.h"

namespace toolbar {

std::optional<text_change> ask_field(CMTextEdit& bar) {
  HostFieldService* service = host::field_service();
  ExMTextEditable& text = bar.editable();
  if (!service || !text.database()) return {};
  const OdDbFieldPtr field = service->insertField(bar.window(), *text.database());
  if (!field) return {};
  return text_change{[&text, field] { text.insertField(field); }, kUndoField};
}

}  // namespace toolbar
