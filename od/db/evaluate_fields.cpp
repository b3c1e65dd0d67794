#include "od/db/evaluate_fields.h"

#include "od/db/database_field_source.h"
#include "od/evaluate/evaluate_field.h"

void oddbEvaluateFields(OdDbDatabase& database, int context, std::span<const OdDbFieldPtr> fields) {
  const OdDbFieldSource source(database);
  for (const OdDbFieldPtr& field : fields) odEvaluateField(field, context, source);
}
