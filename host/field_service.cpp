#include "host/field_service.h"

#include <utility>

#include "od/db/evaluate_fields.h"
#include "od/field/field_markers.h"

namespace {

HostFieldService*& current() {
  static HostFieldService* service = nullptr;
  return service;
}

}  // namespace

OdDbFieldPtr HostGivenFields::insertField(HostWindow*, OdDbDatabase& database) {
  if (m_codes.empty()) return {};
  const std::u16string code = std::move(m_codes.front());
  m_codes.pop_front();
  return code.empty() ? OdDbFieldPtr() : host::evaluated_field(code, database);
}

OdDbFieldPtr HostGivenFields::changeField(const OdDbField&, HostWindow* owner, OdDbDatabase& database) {
  return insertField(owner, database);
}

namespace host {

OdDbFieldPtr evaluated_field(std::u16string_view code, OdDbDatabase& database) {
  const OdDbFieldPtr field = OdDbField::createFromCode(odWithoutMarkers(code));
  oddbEvaluateFields(database, OdDbField::kAutomatic, {&field, 1});
  return field;
}

HostFieldService* field_service() { return current(); }

OfferingFields::OfferingFields(HostFieldService& service) : m_before(std::exchange(current(), &service)) {}

OfferingFields::~OfferingFields() { current() = m_before; }

}  // namespace host
