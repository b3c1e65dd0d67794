#pragma once

#include <optional>

#include "mtext/line_state.h"

namespace mtext {

/// The stop that a tab goes to.
struct found_tab_stop {
  format::tab_stop stop;   ///< its position in drawing units
  bool from_grid = false;  ///< no stop of the paragraph, but of the grid that lies under every line
};

/// The first stop to the right of `x`: one of the paragraph, which must be sorted, or behind them one of the
/// grid of 4 text heights. Nothing if that lies beyond the line.
std::optional<found_tab_stop> next_tab_stop(const line_frame& frame, double x);

/// The hanging rule: where a tab from `x` to `found` really goes. The label of a list, which hangs to the
/// left of the margin, has its text at the margin, whatever stop would come next.
double hung_position(const line_frame& frame, const found_tab_stop& found, double x);

}  // namespace mtext
