#include "mtext/dispose.h"

#include <algorithm>

#include "mtext/attach_vertically.h"
#include "mtext/column_sequence.h"
#include "mtext/layout_line.h"
#include "mtext/line_pitch.h"
#include "mtext/line_state.h"
#include "mtext/place_segment.h"

namespace mtext {
namespace {

/// Places line under line and opens a new column when one is full. Y values are relative to the column's
/// origin.
class disposer {
 public:
  explicit disposer(geom_multitext& text) : m_text(text), m_columns(text.info.columns) {
    take_paragraph(m_cursor, text.format);
  }

  void run() {
    while (m_cursor.next < m_text.parts.size()) add_line();
    end();
  }

  /// The same for a text in one column whose lines were `broken`, before an edit.
  void run_again(const std::vector<geom_line>& broken, const text_edit& edit);

 private:
  void end() {
    if (!m_text.parts.empty() && is_terminator(m_text.parts.back())) add_empty_line();
    push_column(m_text.parts.size());
  }

  void add_line();
  void keep_line(const geom_line& broken, std::size_t first, std::size_t last);
  void leave_line(double next_top, double line_bottom);
  bool needs_next_column(double line_bottom) const;
  void place_parts(std::size_t first, double by);
  void push_line(const string_metrics& size, std::size_t first);
  void push_column(std::size_t last);
  void add_empty_line();
  double empty_line_x(const geom_part& last) const;

  bool by_ink() const { return m_text.info.extents_mode == extents::ink; }
  const geom_part& last_part() const { return m_text.parts[m_cursor.next - 1]; }
  bool breaks_column() const {
    return last_part().type() == part_new_paragraph &&
           static_cast<const new_paragraph&>(last_part().part()).column_break;
  }

  geom_multitext& m_text;
  column_sequence m_columns;
  line_cursor m_cursor;
  double m_top = 0;                ///< of the next line
  double m_baseline = 0;           ///< of the line placed last
  double m_bottom = 0;             ///< of the line placed last
  std::size_t m_column = 0;        ///< the open column
  std::size_t m_column_first = 0;  ///< its first part
};

void disposer::add_line() {
  const std::size_t first = m_cursor.next;
  const format::line_spacing spacing = effective_spacing(m_cursor.paragraph, m_text.info);
  const string_metrics size = layout_line(m_text, m_cursor);
  const line_pitch pitch = pitch_of_line(spacing, size, m_text.info);

  // The line before was placed by its own descent: in single-line texts "At least" counts from its baseline.
  if (by_ink() && spacing.style == spacing_style::at_least && m_top != 0) {
    m_top = m_baseline - (pitch.pitch - pitch.rise);
  }
  m_baseline = m_top - pitch.rise;
  double next_top = m_top - pitch.pitch;
  // Where the line ends in the column it began in. Deliberately not measured anew when it moves to the next
  // one: a column that holds this line alone is as high as if it stood below the last, and attachments go by
  // that.
  const double line_bottom = by_ink() ? m_baseline - size.ink_bottom : next_top;

  if (needs_next_column(line_bottom)) {
    push_column(first);
    m_baseline = -pitch.rise;
    next_top = -pitch.pitch;
  }
  if (by_ink() && m_cursor.paragraph.spacing.style == spacing_style::none) {
    const line_pitch own = pitch_of_line(entity_spacing(m_text.info), size, m_text.info);
    next_top = m_baseline - (own.pitch - own.rise);
  }
  place_parts(first, m_baseline + size.above + size.head);
  push_line(size, first);
  if (breaks_column() && m_columns.exists(m_column + 1)) {
    push_column(m_cursor.next);
    next_top = 0;
  }
  leave_line(next_top, line_bottom);
}

void disposer::leave_line(double next_top, double line_bottom) {
  m_bottom = line_bottom;
  if (last_part().type() == part_new_paragraph && m_cursor.paragraph_begin != m_cursor.next) {
    enter_paragraph(m_text, m_cursor);
  }
  m_top = next_top;
}

/// Takes the parts from `first` to `last` as the line that they were when it was broken. Its parts are placed
/// anew only if the line moved.
void disposer::keep_line(const geom_line& broken, std::size_t first, std::size_t last) {
  const line_pitch pitch =
      pitch_of_line(effective_spacing(m_cursor.paragraph, m_text.info), broken.size, m_text.info);
  m_cursor.next = last;
  m_baseline = m_top - pitch.rise;
  if (m_baseline != broken.y) {
    line_state state;
    state.size = broken.size;
    state.first = first;
    state.next = last;
    place_vertically({m_text.parts, m_text.info, m_cursor.paragraph}, state);
    const double by = m_baseline + broken.size.above + broken.size.head;
    for (std::size_t i = first; i < last; ++i) m_text.parts[i].y += by;
  }
  push_line(broken.size, first);
  const double next_top = m_top - pitch.pitch;
  leave_line(next_top, next_top);
}

void disposer::run_again(const std::vector<geom_line>& broken, const text_edit& edit) {
  const std::size_t size_before = broken.empty() ? 0 : broken.back().last;
  const std::size_t size = m_text.parts.size();
  const auto is_behind = [](std::size_t part, const geom_line& line) { return part < line.first; };
  auto line = std::upper_bound(broken.begin(), broken.end(), edit.before, is_behind);
  // A line was broken in sight of the first word of the next one, and an edit at its start may reach back
  // into the line before.
  const auto first_changed = line - std::min<std::ptrdiff_t>(line - broken.begin(), 3);
  for (line = broken.begin(); line != first_changed; ++line) keep_line(*line, line->first, line->last);

  // Where a line begins in the unchanged rest that began a line before, and as the same paragraph's, the
  // lines are those of before. A line that begins with a tab is not: the line in front of it tried the tab,
  // and has moved it.
  const std::size_t rest = size - edit.behind;
  bool met = false;
  while (m_cursor.next < size) {
    if (!met && m_cursor.next > rest) {
      const std::size_t before = m_cursor.next + size_before - size;
      line = std::lower_bound(line, broken.end(), before,
                              [](const geom_line& each, std::size_t part) { return each.first < part; });
      met = line != broken.end() && line->first == before && line->last > before &&
            (!edit.paragraph_ends || m_cursor.paragraph_begin > rest) &&
            m_text.parts[m_cursor.next].type() != part_tab;
    }
    if (!met) {
      add_line();
      continue;
    }
    keep_line(*line, m_cursor.next, line->last + size - size_before);
    ++line;
  }
  end();
}

/// The first line of a column stays in it, however high it is.
bool disposer::needs_next_column(double line_bottom) const {
  return m_top != 0 && line_bottom < -m_columns.height_limit(m_column) && m_columns.exists(m_column + 1);
}

void disposer::place_parts(std::size_t first, double by) {
  const double origin = m_columns.origin(m_column);
  for (std::size_t i = first; i < m_cursor.next; ++i) {
    m_text.parts[i].x += origin;
    m_text.parts[i].y += by;
  }
}

void disposer::push_line(const string_metrics& size, std::size_t first) {
  geom_line line;
  line.size.head = size.head;
  line.size.above = size.above;
  line.size.below = size.below;
  line.size.gap = size.gap;
  line.size.advance = size.advance;
  line.size.ink_top = size.above;
  line.first = first;
  line.last = m_cursor.next;
  line.x = m_text.parts[first].x;
  line.y = m_baseline;
  m_text.lines.push_back(line);
}

/// Closes the open column and opens the next.
void disposer::push_column(std::size_t last) {
  geom_column column;
  column.first = m_column_first;
  column.last = last;
  column.x = m_columns.origin(m_column);
  column.width = m_text.info.columns.width;
  column.height = -m_bottom;
  m_text.columns.push_back(column);
  ++m_column;
  m_column_first = last;
  m_bottom = 0;
}

/// Behind a line or paragraph end at the end of the text there is a line for the caret.
void disposer::add_empty_line() {
  const geom_part& last = m_text.parts.back();
  const line_pitch pitch =
      pitch_of_line(effective_spacing(m_cursor.paragraph, m_text.info), last.size, m_text.info);
  m_baseline = m_top - pitch.rise;
  geom_line line;
  line.size.head = last.size.head;
  line.size.above = last.size.above;
  line.size.below = last.size.below;
  line.size.gap = last.size.gap;
  line.size.ink_top = last.size.above;
  line.first = line.last = m_text.parts.size();
  line.x = empty_line_x(last);
  line.y = m_baseline;
  m_text.lines.push_back(line);
  m_bottom = by_ink() ? line.y - last.size.ink_bottom : m_top - pitch.pitch;
}

double disposer::empty_line_x(const geom_part& last) const {
  const format::paragraph& paragraph = m_cursor.paragraph;
  const double unit = length_unit(paragraph, m_text.info);
  const double start = (paragraph.indent + paragraph.left) * unit;
  const std::uint32_t aligned = effective_alignment(paragraph, m_text.info);
  double free = m_text.info.columns.width - paragraph.right * unit - start;
  const bool by_shape_ink =
      m_text.info.extents_mode == extents::ink_of_shape_fonts && last.part().format.is_shx;
  if (by_ink() || by_shape_ink) free += last.size.right_bearing;
  if (by_ink() || (by_shape_ink && aligned != alignment::left)) free += last.size.left_bearing;

  const double x = start + m_columns.origin(m_column);
  if (aligned == alignment::centre) return x + 0.5 * free;
  return aligned == alignment::right ? x + free : x;
}

}  // namespace

void dispose(geom_multitext& text) {
  text.lines.clear();
  text.columns.clear();
  disposer(text).run();
  attach_vertically(text);
}

void dispose(geom_multitext& text, const text_edit& edit) {
  const bool hangs_from_top = text.info.vertical == 0;
  const bool in_one_column = !column_sequence(text.info.columns).exists(1);
  if (!hangs_from_top || !in_one_column || text.info.extents_mode == extents::ink) return dispose(text);
  std::vector<geom_line> broken;
  broken.swap(text.lines);
  text.lines.reserve(broken.size() + 1);
  text.columns.clear();
  disposer(text).run_again(broken, edit);
}

}  // namespace mtext
