#include "editor/typed_characters.h"

#include <utility>

#include "mtext/surrogate_pair.h"

std::u16string typed_characters::add(char16_t unit) {
  const char16_t high = std::exchange(m_high_half, u'\0');
  if (mtext::is_high_half(unit)) m_high_half = unit;
  if (mtext::is_high_half(unit)) return {};
  if (!mtext::is_low_half(unit)) return {unit};
  return high ? std::u16string{high, unit} : std::u16string();
}
