#include "ui/controls/CEditEx.h"

#include <utility>

void CEditEx::show(std::u16string_view text) {
  m_text = m_last_text = text;
  if (shown) shown();
}

void CEditEx::enter() {
  const std::u16string before = std::exchange(m_last_text, m_text);
  if (!confirm(std::u16string(m_text))) show(before);
}

void CEditEx::leave() {
  if (m_text != m_last_text) enter();
}
