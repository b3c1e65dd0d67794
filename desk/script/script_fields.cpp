#include "desk/script/script_fields.h"

#include "desk/script/script_source.h"

OdDbFieldPtr ScriptFields::insertField(HostWindow* owner, OdDbDatabase& database) {
  if (codesLeft() == 0 && m_source)
    if (const auto next = m_source->takeField()) give(*next);
  return HostGivenFields::insertField(owner, database);
}
