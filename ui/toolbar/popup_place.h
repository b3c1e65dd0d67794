#pragma once

#include <span>

#include "host/input.h"

namespace toolbar {

/// A rectangle of screen pixels, Y downwards; right and bottom lie outside.
struct screen_box {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool contains(const HostPixel& at) const {
    return at.x >= left && at.x < right && at.y >= top && at.y < bottom;
  }
};

/// A monitor: all of it, and what panels and docks leave of it.
struct monitor {
  screen_box all;
  screen_box work_area;
};

/// Where what pops up from a control opens: at its left edge, just below it. Where no monitor shows that
/// point, it moves sideways into the work area of the nearest one.
HostPixel popup_place(const screen_box& control, std::span<const monitor> monitors);

}  // namespace toolbar
