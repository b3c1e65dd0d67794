#include "editor/column_boxes.h"

#include <algorithm>

#include "editor/part_kinds.h"

namespace editing {

namespace {

constexpr double kLinePitch = 5.0 / 3.0;

double height_limit(const mtext::column_settings& columns, std::size_t index) {
  if (columns.kind != 1) return columns.heights[0];
  return index < columns.heights.size() ? columns.heights[index] : 0;
}

/// Right end of the widest row of a column; breaks do not count.
double right_end(const mtext::geom_multitext& text, const mtext::geom_column& column) {
  double right = column.x + text.info.columns.width;
  for (std::size_t at = column.first; at < column.last; ++at)
    if (!is_break(text.parts[at])) right = std::max(right, text.parts[at].x + text.parts[at].size.advance);
  return right;
}

/// Left end of the text in a column: to the left of the column only where nothing wraps and lines are
/// centred.
double left_end(const mtext::geom_multitext& text, const mtext::geom_column& column) {
  double left = column.x;
  for (std::size_t at = column.first; at < column.last; ++at) left = std::min(left, text.parts[at].x);
  return left;
}

text_box grown(text_box box, double by) {
  return {box.left - by, box.bottom - by, box.right + by, box.top + by};
}

}  // namespace

std::vector<text_box> column_boxes(const mtext::geom_multitext& text, double margin) {
  std::vector<text_box> boxes;
  for (std::size_t i = 0; i < text.columns.size(); ++i) {
    const auto& column = text.columns[i];
    if (column.first == column.last) continue;
    const double limit = height_limit(text.info.columns, i);
    const text_box box{left_end(text, column), std::min(column.y - column.height, -limit),
                       right_end(text, column), std::max(column.y, 0.0)};
    boxes.push_back(grown(box, margin * text.info.height));
  }
  return boxes;
}

bool is_in_text(const mtext::geom_multitext& text, const OdGePoint2d& point) {
  if (text.parts.empty()) {
    const double depth = std::max(text.info.columns.heights[0], text.info.height * kLinePitch);
    const text_box line{0, -depth, text.info.columns.width, 0};
    return grown(line, kColumnMargin * text.info.height).contains(point);
  }
  const auto boxes = column_boxes(text, kColumnMargin);
  return std::any_of(boxes.begin(), boxes.end(), [&](const text_box& box) { return box.contains(point); });
}

}  // namespace editing
