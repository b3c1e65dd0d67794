#include "editor/gadgets/tab_drag.h"

#include <algorithm>
#include <cmath>

namespace mtext {

namespace {

/// How far from a stop, in ticks, a press still takes it.
constexpr double kReach = 0.5;

bool in_reach(double a, double b) {
  if (std::isinf(a) || std::isinf(b)) return a == b;
  return std::abs(a - b) <= kReach;
}

/// Takes the first stop near `tick` out.
std::optional<format::tab_stop> take_stop(std::vector<format::tab_stop>& tabs, double tick) {
  const auto found =
      std::find_if(tabs.begin(), tabs.end(), [&](const auto& stop) { return in_reach(stop.position, tick); });
  if (found == tabs.end()) return std::nullopt;
  const format::tab_stop taken = *found;
  tabs.erase(found);
  return taken;
}

/// The stops with one more.
std::vector<format::tab_stop> with_stop(std::vector<format::tab_stop> tabs, const format::tab_stop& stop) {
  tabs.push_back(stop);
  format::clean_tabs(tabs);
  return tabs;
}

}  // namespace

double nearest_tick(double length, double text_height) { return std::floor(length / text_height + 0.5); }

std::optional<tab_drag> begin_tab_drag(const std::vector<format::paragraph*>& paragraphs, double tick,
                                       std::uint32_t new_kind) {
  std::optional<tab_drag> drag;
  for (format::paragraph* each : paragraphs) {
    std::vector<format::tab_stop> others = each->tabs;
    const auto taken = take_stop(others, tick);
    if (!drag)
      drag = tab_drag{
          .stop = taken.value_or(format::tab_stop{.position = tick, .kind = new_kind, .decimal_char = u' '}),
          .paragraphs = {}};
    each->tabs = with_stop(others, drag->stop);
    drag->paragraphs.push_back({each, std::move(others)});
  }
  return drag;
}

void drag_tab_to(tab_drag& drag, double tick) {
  drag.stop.position = tick;
  for (const tab_drag::held& each : drag.paragraphs)
    each.paragraph->tabs = with_stop(each.other_tabs, drag.stop);
}

void remove_dragged_tab(const tab_drag& drag) {
  for (const tab_drag::held& each : drag.paragraphs) each.paragraph->tabs = each.other_tabs;
}

}  // namespace mtext
