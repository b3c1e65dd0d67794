#pragma once

#include "od/db/OdDbGroups.h"

/// The part of the record that is a multi-line text's own.
const OdDbSubclass& odMTextSubclass();

/// Value groups of the embedded object that multi-line texts carry from R2018 on: much of the text's own data
/// once more, and its columns. Reading from a record without one gives the fallbacks; setting does nothing.
class OdDbEmbeddedMText {
 public:
  explicit OdDbEmbeddedMText(const dxf::Record& record)
      : m_record(record), m_range(record.embedded_object()) {}

  bool exists() const { return m_range.has_value(); }
  /// Throws nothing; only for a record that exists.
  dxf::Range range() const { return m_range.value_or(dxf::Range{}); }
  double real(int code, double fallback) const { return m_record.double_or(code, range(), fallback); }
  int integer(int code, int fallback) const {
    return static_cast<int>(m_record.int_or(code, range(), fallback));
  }

 private:
  const dxf::Record& m_record;
  std::optional<dxf::Range> m_range;
};

/// Set values of the embedded object, if there is one and it has the group.
void odSetEmbeddedReal(dxf::Record& record, int code, double value);
void odSetEmbeddedInteger(dxf::Record& record, int code, int value);
void odSetEmbeddedPoint(dxf::Record& record, int code, const OdGePoint3d& value);
