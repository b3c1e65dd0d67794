#include "mtext/column_sequence.h"

#include <algorithm>

namespace mtext {
namespace {

/// The numbers of `column_settings::kind`.
constexpr std::uint32_t fixed_columns = 0;
constexpr std::uint32_t manual_columns = 1;
constexpr std::uint32_t endless_columns = 2;

}  // namespace

column_sequence::column_sequence(const column_settings& settings) : m_settings(settings) {
  // A manual column exists as long as all heights before it exist and are not 0.
  const auto first_zero = std::find(settings.heights.begin(), settings.heights.end(), 0.0);
  m_manual_last = static_cast<std::size_t>(first_zero - settings.heights.begin());
}

bool column_sequence::exists(std::size_t column) const {
  switch (m_settings.kind) {
    case fixed_columns:
      return column < m_settings.heights.size();
    case manual_columns:
      return column <= m_manual_last;
    default:
      return m_settings.kind == endless_columns;
  }
}

double column_sequence::height_limit(std::size_t column) const {
  if (m_settings.kind != manual_columns) return m_settings.heights.at(0);
  return column < m_settings.heights.size() ? m_settings.heights[column] : 0;
}

double column_sequence::origin(std::size_t column) const {
  if (!exists(column)) return 0;
  return (m_settings.width + m_settings.gutter) * static_cast<double>(column);
}

}  // namespace mtext
