#include "editor/editable.h"
#include "editor/part_kinds.h"

namespace {

struct segment {
  OdGePoint2d top, bottom;
};

/// The vertical stroke at `x` of something that stands on a baseline.
segment stroke(double x, double baseline, double above, double below) {
  return {{x, baseline + above}, {x, baseline - below}};
}

segment at_left_of(const mtext::geom_part& part) {
  return stroke(part.x, part.y, part.size.above, part.size.below);
}

segment at_right_of(const mtext::geom_part& part) {
  return stroke(part.x + part.size.advance, part.y, part.size.above, part.size.below);
}

/// Behind everything: at the last part's right end, or in the empty line that a break at the end opens.
segment at_end(const mtext::geom_multitext& text) {
  if (!editing::is_break(text.parts.back())) return at_right_of(text.parts.back());
  const auto& line = text.lines.back();
  return stroke(line.x, line.y, line.size.above, line.size.below);
}

/// In a text without parts, where no layout tells: from the paragraph's alignment, else from the attachment.
segment in_empty_text(const mtext::geom_multitext& text, const mtext::font_metrics& font,
                      const text_frame& frame) {
  const auto& paragraph = text.format;
  const double unit = paragraph.relative ? text.info.height : 1.0;
  const double left = (paragraph.left + paragraph.indent) * unit;
  const double right = text.info.columns.width - paragraph.right * unit;
  const std::uint32_t alignment =
      paragraph.alignment ? paragraph.alignment : static_cast<std::uint32_t>(frame.attachment % 3) + 1;
  const double x = alignment == 2 ? (right + left) / 2 : alignment == 3 ? right : left;
  const double top = -frame.height * (frame.attachment / 3) / 2;
  return stroke(x, top - font.above, font.above, font.below);
}

segment caret_segment(const mtext::geom_multitext& text, const mtext::marks::selection& selection) {
  const std::size_t at = selection.caret();
  const bool upper = selection.at_line_end && at > 0 && !editing::is_break(text.parts[at - 1]);
  if (at == text.parts.size()) return at_end(text);
  return upper ? at_right_of(text.parts[at - 1]) : at_left_of(text.parts[at]);
}

}  // namespace

void ExMTextEditable::caretPoints(const mtext::marks::selection& selection, OdGePoint2d& top,
                                  OdGePoint2d& bottom) const {
  caretPointsIn(m_text, selection, top, bottom);
}

void ExMTextEditable::displayedCaret(const mtext::marks::selection& selection, OdGePoint2d& top,
                                     OdGePoint2d& bottom) const {
  caretPointsIn(displayed(), selection, top, bottom);
}

void ExMTextEditable::caretPointsIn(const mtext::geom_multitext& text,
                                    const mtext::marks::selection& selection, OdGePoint2d& top,
                                    OdGePoint2d& bottom) const {
  const segment found = text.parts.empty()
                            ? in_empty_text(text, m_finder->font_metrics(insertionFormat(selection)), m_frame)
                            : caret_segment(text, selection);
  top = found.top;
  bottom = found.bottom;
}
