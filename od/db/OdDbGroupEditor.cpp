#include "od/db/OdDbGroupEditor.h"

#include <algorithm>
#include <numbers>

namespace {

constexpr int kNotOrdered = 1 << 20;
constexpr int kBeforeAll = -1;

/// Codes of the data that all entities share. In a record without markers they come before those of a kind.
bool isCommonCode(int code) {
  static constexpr int kCodes[] = {5,   6,   8,   48,  60,  62,  67,  92,  100, 102, 105, 160,
                                   284, 310, 330, 347, 360, 370, 380, 390, 410, 420, 430, 440};
  return std::find(std::begin(kCodes), std::end(kCodes), code) != std::end(kCodes);
}

int rankOf(std::span<const int> order, int code) {
  const auto at = std::find(order.begin(), order.end(), code);
  if (at != order.end()) return static_cast<int>(at - order.begin());
  return isCommonCode(code) ? kBeforeAll : kNotOrdered;
}

}  // namespace

OdDbGroupEditor::OdDbGroupEditor(dxf::Record& record, const OdDbSubclass& part,
                                 std::function<void()> onChange)
    : OdDbGroups(record, part), m_target(record), m_part(part), m_onChange(std::move(onChange)) {}

void OdDbGroupEditor::changed() {
  m_range = OdDbGroups(m_target, m_part).range();
  if (m_onChange) m_onChange();
}

std::size_t OdDbGroupEditor::place(int code) const {
  const int rank = rankOf(m_part.order, code);
  std::size_t at = m_range.begin;
  bool inApplicationGroup = false;
  for (std::size_t i = m_range.begin; i < m_range.end; ++i) {
    const int other = m_record[i].code();
    if (other == 102) inApplicationGroup = m_record[i].value().starts_with('{');
    // A group of the part's own order that comes earlier, or a common one where nothing else is known.
    if (inApplicationGroup || other == 102 || rankOf(m_part.order, other) <= rank) at = i + 1;
  }
  return at;
}

void OdDbGroupEditor::setReal(int code, double value, std::optional<double> absent) {
  const auto at = m_target.find(code, m_range);
  if (at ? m_target.get_double(*at) == value : absent == value) return;
  if (at)
    m_target.set_double(*at, value);
  else
    m_target.insert_double(place(code), code, value);
  changed();
}

void OdDbGroupEditor::setInteger(int code, std::int64_t value, std::optional<std::int64_t> absent) {
  const auto at = m_target.find(code, m_range);
  if (at ? m_target.get_int(*at) == value : absent == value) return;
  if (at)
    m_target.set_int(*at, value);
  else
    m_target.insert_int(place(code), code, value);
  changed();
}

void OdDbGroupEditor::setFlag(int code, int bit, bool on) {
  const int old = integer(code, 0);
  setInteger(code, on ? old | bit : old & ~bit, 0);
}

void OdDbGroupEditor::setString(int code, const OdString& text, std::optional<std::u16string_view> absent) {
  const std::u16string_view value = text.str();
  const auto at = m_target.find(code, m_range);
  if (at && m_target.get_string(*at) == m_target.manner().codec.escape_missing(value)) return;
  if (!at && absent == value) return;
  if (at)
    m_target.set_string(*at, value);
  else
    m_target.insert_string(place(code), code, value);
  changed();
}

void OdDbGroupEditor::setHandle(int code, dxf::Handle value) {
  const auto at = m_target.find(code, m_range);
  if (at ? m_target.get_handle(*at) == value : value == 0) return;
  if (at)
    m_target.set_handle_value(*at, value);
  else
    m_target.insert_handle(place(code), code, value);
  changed();
}

void OdDbGroupEditor::setPoint(int code, const OdGePoint3d& value, std::optional<OdGePoint3d> absent) {
  const auto at = m_target.find(code, m_range);
  if (at ? point(code) == value : absent == value) return;
  if (at)
    m_target.set_point(*at, m_range.end, {value.x, value.y, value.z});
  else
    m_target.insert_point(place(code), code, {value.x, value.y, value.z});
  changed();
}

void OdDbGroupEditor::setAngle(int code, double radians) {
  if (angle(code) == radians) return;
  setReal(code, radians * 180 / std::numbers::pi, 0);
}

void OdDbGroupEditor::remove(int code) {
  const std::vector<std::size_t> found = m_target.find_all(code, m_range);
  for (auto at = found.rbegin(); at != found.rend(); ++at) m_target.erase(*at);
  if (!found.empty()) changed();
}

void OdDbGroupEditor::removePoint(int code) {
  remove(code);
  remove(code + 10);
  remove(code + 20);
}
