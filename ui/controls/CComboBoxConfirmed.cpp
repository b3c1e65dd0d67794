#include "ui/controls/CComboBoxConfirmed.h"

#include <algorithm>
#include <utility>

#include "ui/controls/number_text.h"

CComboBoxConfirmed::CComboBoxConfirmed() {
  m_edit.confirm = [this](const std::u16string& text) { return take(rowOf(controls::leading_number(text))); };
}

void CComboBoxConfirmed::setSizes(std::vector<float> sizes) {
  m_sizes = std::move(sizes);
  std::sort(m_sizes.begin(), m_sizes.end());
  m_selected.reset();
  if (shown) shown();
}

std::u16string CComboBoxConfirmed::rowText(std::size_t row) const {
  constexpr int kDigits = 6;
  return controls::short_text(m_sizes[row], kDigits);
}

void CComboBoxConfirmed::choose(std::size_t row) {
  const std::u16string before = m_edit.text();
  m_edit.show(rowText(row));
  if (!take(row)) m_edit.show(before);
}

std::size_t CComboBoxConfirmed::rowOf(float size) {
  auto place = std::lower_bound(m_sizes.begin(), m_sizes.end(), size);
  if (place == m_sizes.end() || *place != size) place = m_sizes.insert(place, size);
  return static_cast<std::size_t>(place - m_sizes.begin());
}

bool CComboBoxConfirmed::take(std::size_t row) {
  const auto before = std::exchange(m_selected, row);
  if (shown) shown();
  if (!confirmed || confirmed(m_sizes[row])) return true;
  m_selected = before;
  if (shown) shown();
  return false;
}
