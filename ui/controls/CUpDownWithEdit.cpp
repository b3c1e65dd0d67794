#include "ui/controls/CUpDownWithEdit.h"

#include <algorithm>
#include <cmath>

#include "ui/controls/number_text.h"

namespace {

constexpr int kDigits = 3;

/// round(value times factor), half away from zero; the nearest number there is for one that is too great.
std::int32_t position_of(double value, std::int32_t factor) {
  constexpr double kGreatest = INT32_MAX;
  return static_cast<std::int32_t>(std::clamp(std::round(value * factor), -kGreatest, kGreatest));
}

}  // namespace

CUpDownWithEdit::CUpDownWithEdit(const spin_range& range, double value)
    : m_factor(range.factor),
      m_spin(position_of(range.low, range.factor), position_of(range.high, range.factor)) {
  m_edit.confirm = [this](const std::u16string& text) { return confirmText(text); };
  set(value);
}

void CUpDownWithEdit::arrow(std::int32_t delta) {
  m_spin.move(std::int64_t{m_spin.position()} + delta);
  change(m_spin.position());
}

void CUpDownWithEdit::set(double value) {
  const std::int32_t position = position_of(value, m_factor);
  m_spin.move(position);
  showPosition(position);
}

void CUpDownWithEdit::clear() {
  m_spin.move(m_spin.low());
  m_position = m_spin.low();
  m_edit.show(u"");
}

bool CUpDownWithEdit::confirmText(const std::u16string& text) {
  const auto value = controls::whole_number(text);
  if (!value) return true;
  const std::int32_t position = position_of(*value, m_factor);
  // The arrows are told the low 16 bits alone, so behind a number beyond these they go on from elsewhere than
  // where the box stands. That is deliberate.
  m_spin.move(static_cast<std::int16_t>(position));
  return change(m_spin.clamped(position));
}

bool CUpDownWithEdit::change(std::int32_t position) {
  const std::int32_t position_before = m_position;
  const std::u16string text_before = m_edit.text();
  showPosition(position);
  if (!changed || changed(valueAt(position))) return true;
  m_spin.move(position_before);
  m_position = position_before;
  m_edit.show(text_before);
  return false;
}

void CUpDownWithEdit::showPosition(std::int32_t position) {
  m_position = position;
  m_edit.show(controls::fixed_text(valueAt(position), kDigits));
}

double CUpDownWithEdit::valueAt(std::int32_t position) const {
  return static_cast<double>(position) / m_factor;
}
