#include <algorithm>

#include "mtext/geom_multitext.h"

namespace mtext {
namespace {

/// A stretch of one axis, both ends included.
struct span {
  double low = 0;
  double high = 0;

  bool touches(const span& other) const { return low <= other.high && other.low <= high; }
  bool holds(double value) const { return low <= value && value <= high; }
  double distance(double value) const {
    if (value < low) return low - value;
    return value > high ? value - high : 0;
  }
  span joined(const span& other) const { return {std::min(low, other.low), std::max(high, other.high)}; }
};

span width_of(const geom_column& column) { return {column.x, column.x + column.width}; }
span width_of(const geom_line& line) { return {line.x, line.x + line.size.advance}; }
span height_of(const geom_line& line) {
  return {line.y - (line.size.gap + line.size.below), line.y + line.size.above + line.size.head};
}

/// The column nearest to `x`; of equally near ones the first.
std::size_t nearest_column(const std::vector<geom_column>& columns, double x) {
  std::size_t nearest = 0;
  for (std::size_t i = 1; i < columns.size(); ++i) {
    if (width_of(columns[i]).distance(x) < width_of(columns[nearest]).distance(x)) nearest = i;
  }
  return nearest;
}

/// Fills `line` and `outside`. Of equally near lines the last wins.
void find_line(text_hit& hit, const std::vector<geom_line>& lines, const span& column, double x, double y) {
  double best = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const span width = width_of(lines[i]);
    if (!width.touches(column)) continue;
    const double distance = height_of(lines[i]).distance(y);
    if (hit.line != text_hit::no_line && !(distance <= best)) continue;
    best = distance;
    hit.line = i;
    hit.outside = !width.joined(column).holds(x) || !height_of(lines[i]).holds(y);
  }
}

/// The position in a line that `x` is nearest to. Before a line end, however far to the right of it.
std::size_t position_in_line(const geom_parts& parts, const geom_line& line, double x) {
  for (std::size_t i = line.first; i < line.last; ++i) {
    const geom_part& part = parts[i];
    if (!(x <= part.x + part.size.advance)) continue;
    const bool beyond_middle = part.x + part.size.advance / 2 < x;
    return beyond_middle && !is_terminator(part) ? i + 1 : i;
  }
  return line.last;
}

std::size_t column_of(const std::vector<geom_column>& columns, std::size_t at) {
  const auto found = std::find_if(columns.begin(), columns.end(), [at](const geom_column& column) {
    return column.first <= at && at < column.last;
  });
  return static_cast<std::size_t>(found - columns.begin());
}

}  // namespace

text_hit geom_multitext::position_at(double px, double py) const {
  text_hit hit;
  if (!columns.empty()) find_line(hit, lines, width_of(columns[nearest_column(columns, px)]), px, py);
  hit.at = hit.line == text_hit::no_line ? parts.size() : position_in_line(parts, lines[hit.line], px);
  hit.column = column_of(columns, hit.at);
  return hit;
}

}  // namespace mtext
