#include "mtext/next_tab_stop.h"

#include <algorithm>
#include <cmath>

namespace mtext {
namespace {

/// Distance of the grid lines, in text heights.
constexpr double grid_step = 4.0;

/// Two places of one line that are nearer than this are the same.
constexpr double place_tolerance = 1e-10;

/// What stops may take up. The right margin counts twice: a deliberate quirk, drawings are laid out by it.
double room_for_stops(const line_frame& frame) {
  const double room = frame.info.columns.width - 2 * frame.right;
  return room < 0 ? 0 : room;
}

std::optional<found_tab_stop> grid_stop(double x, double height, double room) {
  const double position = (std::floor(x / (height * grid_step)) + 1.0) * height * grid_step;
  if (position > room) return std::nullopt;
  return found_tab_stop{{position, 0, u' '}, true};
}

}  // namespace

std::optional<found_tab_stop> next_tab_stop(const line_frame& frame, double x) {
  const double height = frame.info.height;
  const double room = room_for_stops(frame);
  const std::vector<format::tab_stop>& tabs = frame.paragraph.tabs;
  const auto found =
      std::upper_bound(tabs.begin(), tabs.end(), x / height,
                       [](double place, const format::tab_stop& stop) { return place < stop.position; });
  // The room, in drawing units, is compared with the position as it is stored, in text heights: deliberate
  // too.
  if (found == tabs.end() || room < found->position) return grid_stop(x, height, room);
  found_tab_stop result{*found, false};
  if (frame.paragraph.relative) result.stop.position *= height;
  return result;
}

double hung_position(const line_frame& frame, const found_tab_stop& found, double x) {
  const double position = found.stop.position;
  if (!frame.hanging || !(x < frame.left - place_tolerance)) return position;
  return found.from_grid || frame.left + place_tolerance < position ? frame.left : position;
}

}  // namespace mtext
