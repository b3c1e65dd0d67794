#pragma once

#include <utility>
#include <vector>

#include "od/db/OdDbObject.h"
#include "od/field/OdDbField.h"

/// The text of a host with its fields.
inline OdDbFieldPtr container(const OdString& code, std::vector<OdDbFieldPtr> children) {
  auto field = odNew<OdDbField>();
  field->setFieldCode(code, OdDbField::kTextField | OdDbField::kPreserveFields, std::move(children));
  return field;
}

/// A field of which the value is known, whatever the day.
inline OdDbFieldPtr shownField(std::u16string_view code, const OdString& text) {
  OdDbFieldPtr field = OdDbField::createFromCode(code);
  field->setEvaluation(text, text, OdDbField::kSuccess);
  return field;
}

/// What a host shows; null for one without a field.
inline OdDbFieldPtr fieldOf(const OdDbObject& host) { return odCast<OdDbField>(host.getField(u"TEXT")); }
