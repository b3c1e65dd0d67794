#pragma once

#include <deque>
#include <string>

#include "od/field/OdDbField.h"

class HostWindow;
class OdDbDatabase;

/// Makes and changes fields together with the user.
class HostFieldService {
 public:
  virtual ~HostFieldService() = default;
  /// A new field, evaluated for the drawing; null when the user has cancelled. `owner` may be null.
  virtual OdDbFieldPtr insertField(HostWindow* owner, OdDbDatabase& database) = 0;
  /// The field that takes the place of `field`, which stays what it is; null when the user has cancelled.
  virtual OdDbFieldPtr changeField(const OdDbField& field, HostWindow* owner, OdDbDatabase& database) = 0;
};

/// Fields given beforehand, by their codes. Without a code that is left, or for an empty one, it is as if the
/// user had cancelled.
class HostGivenFields : public HostFieldService {
 public:
  OdDbFieldPtr insertField(HostWindow* owner, OdDbDatabase& database) override;
  OdDbFieldPtr changeField(const OdDbField& field, HostWindow* owner, OdDbDatabase& database) override;

  /// The code of the next field, with or without the markers around it.
  void give(std::u16string code) { m_codes.push_back(std::move(code)); }
  std::size_t codesLeft() const { return m_codes.size(); }

 private:
  std::deque<std::u16string> m_codes;
};

namespace host {

/// A field of its code, with or without the markers around it, evaluated for the drawing.
OdDbFieldPtr evaluated_field(std::u16string_view code, OdDbDatabase& database);

/// Who makes fields; null while nobody does, and then there are no new ones.
HostFieldService* field_service();

/// Makes a service the one that makes fields, for as long as the guard lives; the one before comes back after
/// it.
class OfferingFields {
 public:
  explicit OfferingFields(HostFieldService& service);
  ~OfferingFields();
  OfferingFields(const OfferingFields&) = delete;
  OfferingFields& operator=(const OfferingFields&) = delete;

 private:
  HostFieldService* m_before;
};

}  // namespace host
