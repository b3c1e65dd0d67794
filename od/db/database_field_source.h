#pragma once

#include "od/db/OdDbDatabase.h"
#include "od/evaluate/OdFieldSource.h"

/// The moment it is, in local time.
OdFieldDate odLocalTime();

/// What fields show of a drawing: its file, its properties, its system variables and its objects. Nothing is
/// opened but the drawing's own objects; of the file only its size is asked for.
class OdDbFieldSource : public OdFieldSource {
 public:
  explicit OdDbFieldSource(OdDbDatabase& database, const OdFieldDate& now = odLocalTime())
      : m_database(database), m_now(now) {}

  std::optional<OdFieldValue> variable(std::u16string_view name) const override;
  std::optional<OdFieldValue> property(std::uint64_t handle, std::u16string_view name) const override;
  OdFieldUnits units() const override;

 private:
  OdDbDatabase& m_database;
  OdFieldDate m_now;
};
