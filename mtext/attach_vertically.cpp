#include "mtext/attach_vertically.h"

#include <algorithm>

namespace mtext {
namespace {

constexpr std::uint32_t attached_middle = 1;

std::vector<geom_line>::iterator first_line_from(std::vector<geom_line>& lines, std::size_t part) {
  return std::lower_bound(lines.begin(), lines.end(), part,
                          [](const geom_line& line, std::size_t at) { return line.first < at; });
}

/// The empty line at the end of the text stands in no column's range; it moves with every column that ends
/// there.
void shift_last_empty_line(geom_multitext& text, const geom_column& column, double shift) {
  if (text.lines.empty()) return;
  geom_line& line = text.lines.back();
  if (line.first == line.last && line.first == column.last) line.y -= shift;
}

void shift_column(geom_multitext& text, geom_column& column, double shift) {
  for (std::size_t i = column.first; i < column.last; ++i) text.parts[i].y -= shift;
  const auto end = first_line_from(text.lines, column.last);
  for (auto line = first_line_from(text.lines, column.first); line != end; ++line) line->y -= shift;
  shift_last_empty_line(text, column, shift);
  column.y -= shift;
}

}  // namespace

void attach_vertically(geom_multitext& text) {
  if (text.info.vertical == 0) return;
  const std::vector<double>& heights = text.info.columns.heights;
  const double height = heights.empty() ? 0 : *std::max_element(heights.begin(), heights.end());
  const double share = text.info.vertical == attached_middle ? 0.5 : 1.0;
  for (geom_column& column : text.columns) shift_column(text, column, (height - column.height) * share);
}

}  // namespace mtext
