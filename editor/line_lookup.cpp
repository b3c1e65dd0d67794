#include "editor/line_lookup.h"

#include <algorithm>

#include "editor/caret_steps.h"
#include "editor/part_kinds.h"

namespace editing {

std::size_t line_at(const mtext::geom_multitext& text, std::size_t position) {
  const auto& lines = text.lines;
  if (lines.empty()) return 0;
  const auto behind =
      std::upper_bound(lines.begin(), lines.end(), position,
                       [](std::size_t at, const mtext::geom_line& line) { return at < line.first; });
  return behind == lines.begin() ? 0 : static_cast<std::size_t>(behind - lines.begin()) - 1;
}

std::size_t line_of(const mtext::geom_multitext& text, const mtext::marks::selection& selection) {
  const std::size_t caret = selection.caret();
  const bool upper = selection.at_line_end && caret > 0 && !is_break(text.parts[caret - 1]);
  return line_at(text, upper ? caret - 1 : caret);
}

std::size_t position_in_line(const mtext::geom_multitext& text, double x, std::size_t line) {
  const auto& record = text.lines.at(line);
  for (std::size_t at = record.first; at < record.last; ++at)
    if (x < text.parts[at].x + text.parts[at].size.advance / 2) return off_pair(text, at);
  const bool ends_in_break = record.last > record.first && is_break(text.parts[record.last - 1]);
  return ends_in_break ? record.last - 1 : record.last;
}

mtext::marks::selection caret_at_point(const mtext::geom_multitext& text, double x, double y) {
  auto hit = text.position_at(x, y);
  hit.at = off_pair(text, hit.at);
  const bool other_line = hit.at > 0 && line_at(text, hit.at) != hit.line;
  if (!other_line) return mtext::marks::selection(hit.at);
  if (is_break(text.parts[hit.at - 1])) return mtext::marks::selection(hit.at - 1);
  mtext::marks::selection caret(hit.at);
  caret.at_line_end = true;
  return caret;
}

}  // namespace editing
