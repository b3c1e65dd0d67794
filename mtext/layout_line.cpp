#include "mtext/layout_line.h"

#include "mtext/align_line.h"
#include "mtext/merge_metrics.h"
#include "mtext/next_tab_stop.h"
#include "mtext/place_segment.h"

namespace mtext {
namespace {

/// An indent less than this lets the first line of a paragraph hang.
constexpr double hanging_indent = -1e-10;

/// Whether the line takes more parts.
enum class step { go_on, stop };

/// Breaks one line: a first step that always takes a part, then steps that take one more word, blank, stack
/// or tab each, as long as it fits.
class line_breaker {
 public:
  line_breaker(const line_frame& frame, const line_state& start) : m_frame(frame), m_line(start) {}

  const line_state& run() {
    step outcome = first_part();
    while (outcome == step::go_on) outcome = next_part();
    return m_line;
  }

  /// The line ended with a paragraph end of its own, not with one behind blanks that hung over.
  bool passed_paragraph_end() const { return m_passed_paragraph_end; }

 private:
  bool at_end(const line_state& state) const { return state.next == m_frame.parts.size(); }
  geom_part& part_at(const line_state& state) const { return m_frame.parts[state.next]; }

  bool is_full(const line_state& state) const {
    return m_frame.wraps() && state.limit - state.start <= ink_width(state.size);
  }
  bool fits(const line_state& state) const {
    return !m_frame.wraps() || ink_width(state.size) < state.limit - state.start;
  }

  void take_with_advance(line_state& state) const {
    merge_with_advance(state.size, part_at(state).size);
    ++state.next;
  }

  void take_word(line_state& state) const {
    while (!at_end(state) && part_at(state).type() == part_string) take_with_advance(state);
  }

  /// Blanks that overflow stay on the line that they follow, and so does a line end right behind them.
  void absorb_line_end() {
    while (!at_end(m_line) && part_at(m_line).type() == part_spaces) absorb();
    if (!at_end(m_line) && is_terminator(part_at(m_line))) absorb();
  }
  void absorb() {
    add_blank(m_line.size, part_at(m_line).size.advance);
    ++m_line.next;
  }

  step stop_placed() const {
    place_segment(m_frame, m_line);
    return step::stop;
  }
  step stop_full() {
    absorb_line_end();
    return stop_placed();
  }
  step end_paragraph() {
    ++m_line.next;
    m_passed_paragraph_end = true;
    return stop_placed();
  }

  step first_part();
  step first_content();
  step first_tab();
  step next_part();
  step next_word();
  step next_blank();
  step next_stack();
  step next_tab();

  line_frame m_frame;
  line_state m_line;
  bool m_passed_paragraph_end = false;
};

step line_breaker::first_part() {
  if (at_end(m_line)) return step::stop;
  geom_part& part = part_at(m_line);
  merge_height(m_line.size, part.size);
  switch (part.type()) {
    case part_tab:
      return first_tab();
    case part_new_line:
      ++m_line.next;
      part.x = 0;
      return step::stop;
    case part_new_paragraph:
      return end_paragraph();
    default:
      return first_content();
  }
}

/// A word, blank or stack that is too wide for the line stands alone on it and overflows.
step line_breaker::first_content() {
  m_line.segment = m_line.next;
  if (part_at(m_line).type() == part_string) {
    take_word(m_line);
  } else {
    take_with_advance(m_line);
  }
  return is_full(m_line) ? stop_full() : step::go_on;
}

step line_breaker::first_tab() {
  std::optional<found_tab_stop> found = next_tab_stop(m_frame, m_line.start);
  if (!found) {
    m_line.start = 0;
    found = found_tab_stop{{0, m_line.stop.kind, m_line.stop.decimal_char}, true};
  }
  m_line.stop = found->stop;
  m_line.stop.position = hung_position(m_frame, *found, m_line.start);
  m_line.start = m_line.stop.position;

  geom_part& tab = part_at(m_line);
  tab.x = 0;
  tab.size.advance = m_line.stop.position;
  m_line.segment = m_line.next++;
  take_word(m_line);
  return step::go_on;
}

step line_breaker::next_part() {
  if (at_end(m_line)) return stop_placed();
  switch (part_at(m_line).type()) {
    case part_string:
      return next_word();
    case part_spaces:
      return next_blank();
    case part_tab:
      return next_tab();
    case part_stack:
      return next_stack();
    case part_new_paragraph:
      return end_paragraph();
    default:
      ++m_line.next;
      return stop_placed();
  }
}

step line_breaker::next_word() {
  line_state with_word = m_line;
  take_word(with_word);
  if (!fits(with_word)) return stop_placed();
  m_line = with_word;
  return step::go_on;
}

step line_breaker::next_blank() {
  line_state with_blank = m_line;
  merge_height(with_blank.size, part_at(m_line).size);
  add_blank(with_blank.size, part_at(m_line).size.advance);
  if (is_full(with_blank)) return stop_full();
  m_line = with_blank;
  ++m_line.next;
  return step::go_on;
}

/// A stack breaks like a word.
step line_breaker::next_stack() {
  line_state with_stack = m_line;
  take_with_advance(with_stack);
  if (is_full(with_stack)) return stop_placed();
  m_line = with_stack;
  return step::go_on;
}

/// A tab that has no stop, or whose word doesn't fit behind its stop, opens the next line. Its fields may
/// have been written by then, and are written again there.
step line_breaker::next_tab() {
  const double x = place_segment(m_frame, m_line);
  const std::optional<found_tab_stop> found = next_tab_stop(m_frame, x);
  if (!found) return step::stop;

  line_state behind_tab = m_line;
  behind_tab.stop = found->stop;
  behind_tab.stop.position = hung_position(m_frame, *found, x);
  geom_part& tab = part_at(m_line);
  tab.x = x;
  tab.size.advance = behind_tab.stop.position - x;
  behind_tab.start = behind_tab.stop.position;
  behind_tab.size.advance = 0;
  behind_tab.segment = behind_tab.next++;
  take_word(behind_tab);
  if (!fits(behind_tab)) return step::stop;
  m_line = behind_tab;
  return step::go_on;
}

line_frame frame_of_line(geom_multitext& text, const line_cursor& cursor) {
  const format::paragraph& paragraph = cursor.paragraph;
  const double unit = length_unit(paragraph, text.info);
  line_frame frame{text.parts, text.info, paragraph};
  frame.alignment = effective_alignment(paragraph, text.info);
  frame.left = paragraph.left * unit;
  frame.right = paragraph.right * unit;
  frame.hanging = cursor.next == cursor.paragraph_begin && paragraph.indent * unit < hanging_indent;
  return frame;
}

line_state start_of_line(const line_frame& frame, const line_cursor& cursor) {
  line_state state;
  state.start = frame.left;
  if (cursor.next == cursor.paragraph_begin) {
    state.start += frame.paragraph.indent * length_unit(frame.paragraph, frame.info);
  }
  state.limit = frame.info.columns.width - frame.right;
  state.segment = state.first = state.next = cursor.next;
  state.stop.position = state.start;
  return state;
}

}  // namespace

string_metrics layout_line(geom_multitext& text, line_cursor& cursor) {
  const line_frame frame = frame_of_line(text, cursor);
  line_breaker breaker(frame, start_of_line(frame, cursor));
  const line_state& line = breaker.run();
  align_line(frame, line);
  place_vertically(frame, line);
  cursor.next = line.next;
  if (breaker.passed_paragraph_end()) enter_paragraph(text, cursor);
  return line.size;
}

void take_paragraph(line_cursor& cursor, const format::paragraph& paragraph) {
  format::tab_list cleaned = std::move(cursor.paragraph.tabs);
  cursor.paragraph = paragraph;
  if (!paragraph.tabs.is_shared_with(cursor.given_tabs)) {
    cursor.given_tabs = cleaned = paragraph.tabs;
    format::clean_tabs(cleaned.edit());
  }
  cursor.paragraph.tabs = std::move(cleaned);
}

void enter_paragraph(const geom_multitext& text, line_cursor& cursor) {
  const part& opener = text.parts[cursor.next - 1].part();
  take_paragraph(cursor, static_cast<const new_paragraph&>(opener).paragraph);
  cursor.paragraph_begin = cursor.next;
}

}  // namespace mtext
