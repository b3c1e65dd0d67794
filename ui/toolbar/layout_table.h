#pragma once

#include <span>

namespace toolbar {

/// The rows of controls from the top down, each from left to right by the controls' numbers; 0 is a gap. What
/// stands behind `kFarEnd` stands at the far end of its row.
inline constexpr int kFarEnd = -1;
std::span<const std::span<const int>> layout_rows(bool compact);

}  // namespace toolbar
