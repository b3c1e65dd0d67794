#include "od/db/OdDbGroups.h"

#include <numbers>

namespace {

dxf::Range rangeOf(const dxf::Record& record, const OdDbSubclass& part) {
  const auto own = record.subclass(part.marker, part.occurrence);
  if (own && (part.required == 0 || record.find(part.required, *own))) return *own;
  if (part.occurrence > 0) {
    if (auto range = record.subclass(part.marker)) return *range;
  }
  return record.body();
}

}  // namespace

OdDbGroups::OdDbGroups(const dxf::Record& record, const OdDbSubclass& part)
    : m_record(record), m_range(rangeOf(record, part)) {}

int OdDbGroups::integer(int code, int fallback) const {
  return static_cast<int>(m_record.int_or(code, m_range, fallback));
}

OdString OdDbGroups::string(int code, std::u16string_view fallback) const {
  return m_record.string_or(code, m_range, fallback);
}

OdGePoint3d OdDbGroups::point(int code, const OdGePoint3d& fallback) const {
  const dxf::Point p = m_record.point_or(code, m_range, {fallback.x, fallback.y, fallback.z});
  return {p[0], p[1], p[2]};
}

double OdDbGroups::angle(int code) const { return real(code, 0) * std::numbers::pi / 180; }
