#include "editor/field_commands.h"

#include "editor/smart_edit.h"
#include "host/exports.h"
#include "host/field_service.h"
#include "od/db/evaluate_fields.h"

namespace editing {

bool can_make_fields() { return host::field_service() != nullptr; }

bool insert_field(smart_edit& session) {
  HostFieldService* service = host::field_service();
  const OdDbFieldPtr made =
      service ? service->insertField(session.window(), session.database()) : OdDbFieldPtr();
  if (!made) return false;
  session.pushUndoStep(kUndoField);
  session.editable().insertField(made);
  host::update_now();
  return true;
}

bool change_field(smart_edit& session, const OdGePoint2d& at) {
  const mtext::marks::field* mark = session.editable().fieldAt(at);
  HostFieldService* service = host::field_service();
  if (!mark || !service) return false;
  const OdDbFieldPtr present = session.editable().fieldObject(*mark);
  const OdDbFieldPtr changed = service->changeField(*present, session.window(), session.database());
  if (!changed) return false;
  session.pushUndoStep(kUndoField);
  session.editable().replaceField(at, changed);
  return true;
}

bool update_field(smart_edit& session, const OdGePoint2d& at) {
  const mtext::marks::field* mark = session.editable().fieldAt(at);
  if (!mark) return false;
  const OdDbFieldPtr field = session.editable().fieldObject(*mark);
  session.pushUndoStep(kUndoField);
  oddbEvaluateFields(session.database(), OdDbField::kOnDemand, {&field, 1});
  session.editable().replaceField(at, field);
  return true;
}

}  // namespace editing
