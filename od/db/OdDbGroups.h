#pragma once

#include <optional>
#include <span>

#include "od/base/OdString.h"
#include "od/dxf/record.h"
#include "od/ge/OdGePoint3d.h"

/// A part of a record: the groups behind one subclass marker, and the order in which its codes are written.
struct OdDbSubclass {
  std::string_view marker;
  std::span<const int> order;  ///< codes that are missing here are written at the end
  std::size_t occurrence = 0;  ///< counts equal markers of the record
  /// A code that the part cannot do without; 0 for none. Where it is missing the writer has put the part's
  /// groups elsewhere, and the whole record is searched.
  int required = 0;
};

/// Reads the groups of one part of a record. Values that are missing or unreadable give the fallback.
class OdDbGroups {
 public:
  OdDbGroups(const dxf::Record& record, const OdDbSubclass& part);

  /// Indices of the part's groups. Where the marker is missing: the record up to embedded object and extended
  /// data, since writers differ.
  dxf::Range range() const { return m_range; }
  bool has(int code) const { return m_record.find(code, m_range).has_value(); }
  double real(int code, double fallback) const { return m_record.double_or(code, m_range, fallback); }
  int integer(int code, int fallback) const;
  bool flag(int code, int bit) const { return (integer(code, 0) & bit) != 0; }
  OdString string(int code, std::u16string_view fallback = {}) const;
  dxf::Handle handle(int code) const { return m_record.handle_or(code, m_range, 0); }
  OdGePoint3d point(int code, const OdGePoint3d& fallback = {}) const;
  /// Degrees in the file, radians here.
  double angle(int code) const;

 protected:
  const dxf::Record& m_record;
  dxf::Range m_range;
};
