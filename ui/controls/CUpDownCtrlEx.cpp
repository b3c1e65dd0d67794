#include "ui/controls/CUpDownCtrlEx.h"

#include <algorithm>

std::int32_t CUpDownCtrlEx::clamped(std::int64_t position) const {
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(position, m_low, m_high));
}
