#include "ui/toolbar/popup_place.h"

#include <algorithm>

namespace toolbar {
namespace {

long squared_distance(const HostPixel& at, const screen_box& box) {
  const long dx = at.x - std::clamp(at.x, box.left, box.right - 1);
  const long dy = at.y - std::clamp(at.y, box.top, box.bottom - 1);
  return dx * dx + dy * dy;
}

}  // namespace

HostPixel popup_place(const screen_box& control, std::span<const monitor> monitors) {
  constexpr int kGap = 2;
  HostPixel at{control.left, control.bottom + kGap};
  const auto shows = [&at](const monitor& each) { return each.all.contains(at); };
  if (monitors.empty() || std::any_of(monitors.begin(), monitors.end(), shows)) return at;
  const auto nearest =
      std::min_element(monitors.begin(), monitors.end(), [&at](const monitor& a, const monitor& b) {
        return squared_distance(at, a.all) < squared_distance(at, b.all);
      });
  at.x = std::clamp(at.x, nearest->work_area.left, nearest->work_area.right - 1);
  return at;
}

}  // namespace toolbar
