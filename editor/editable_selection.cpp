#include "editor/caret_steps.h"
#include "editor/editable.h"
#include "editor/line_lookup.h"
#include "editor/part_kinds.h"
#include "editor/selection_scope.h"
#include "editor/solid_stops.h"
#include "editor/word_bounds.h"
#include "mtext/marks.h"

using mtext::marks::selection;

namespace {

/// Gives `range` the caret `to`; its anchor stays with Shift and follows without.
void take_caret(selection& range, std::size_t to, bool shift) {
  range = shift ? selection(range.anchor(), to) : selection(to);
}

template <class Move>
void each_selection(mtext::geom_multitext& text, const Move& move) {
  selection_scope scope(text);
  for (selection& range : scope.selections) move(range);
}

}  // namespace

void ExMTextEditable::moveLeft(bool shift, bool word) {
  each_selection(m_text, [&](selection& range) {
    std::size_t to = range.caret();
    if (word)
      to = editing::word_start(m_text, to);
    else if (!shift && !range.empty())
      to = range.begin;
    else if (to > 0)
      to = editing::step_left(m_text, to);
    take_caret(range, editing::stop_before(m_text, to), shift);
  });
}

void ExMTextEditable::moveRight(bool shift, bool word) {
  each_selection(m_text, [&](selection& range) {
    std::size_t to = range.caret();
    if (word)
      to = editing::word_end(m_text, to);
    else if (!shift && !range.empty())
      to = range.end;
    else if (to < m_text.parts.size())
      to = editing::step_right(m_text, to);
    take_caret(range, editing::stop_behind(m_text, to), shift);
  });
}

void ExMTextEditable::moveHome(bool shift) {
  if (m_text.parts.empty()) return;
  each_selection(m_text, [&](selection& range) {
    const std::size_t line = editing::line_of(m_text, range);
    const auto& record = m_text.lines[line];
    std::size_t to = range.caret();
    if (line == 0)
      to = 0;
    else if (record.first < record.last)
      to = record.first;
    take_caret(range, editing::stop_behind(m_text, to), shift);
  });
}

void ExMTextEditable::moveEnd(bool shift) {
  if (m_text.parts.empty()) return;
  each_selection(m_text, [&](selection& range) {
    std::size_t to = m_text.lines[editing::line_of(m_text, range)].last;
    const bool ends_in_break = to > 0 && editing::is_break(m_text.parts[to - 1]);
    if (ends_in_break) --to;
    std::size_t anchor = range.anchor();
    if (const auto* solid = editing::solid_ending_at(m_text, to); solid && anchor == to)
      anchor = solid->begin;
    range = shift ? selection(anchor, to) : selection(to);
    range.at_line_end = !shift && !ends_in_break;
  });
}

void ExMTextEditable::moveTextStart(bool shift) {
  each_selection(m_text, [&](selection& range) { take_caret(range, 0, shift); });
}

void ExMTextEditable::moveTextEnd(bool shift) {
  each_selection(m_text, [&](selection& range) { take_caret(range, m_text.parts.size(), shift); });
}

void ExMTextEditable::moveToLine(int step, bool shift, bool add_caret) {
  if (m_text.lines.empty()) return;
  selection_scope scope(m_text);
  const auto before = scope.selections;
  for (selection& range : scope.selections) {
    const std::size_t line = editing::line_of(m_text, range);
    const bool leaves_text = step < 0 ? line == 0 : line + 1 == m_text.lines.size();
    if (leaves_text) {
      take_caret(range, editing::stop_behind(m_text, step < 0 ? 0 : m_text.parts.size()), shift);
      continue;
    }
    const std::size_t target = step < 0 ? line - 1 : line + 1;
    OdGePoint2d top, bottom;
    caretPoints(range, top, bottom);
    take_caret(range, editing::stop_behind(m_text, editing::position_in_line(m_text, top.x, target)), shift);
    range.at_line_end = range.caret() == m_text.lines[target].last;
  }
  if (add_caret && !shift) scope.selections.insert(scope.selections.end(), before.begin(), before.end());
}

void ExMTextEditable::moveUp(bool shift, bool add_caret) { moveToLine(-1, shift, add_caret); }

void ExMTextEditable::moveDown(bool shift, bool add_caret) { moveToLine(+1, shift, add_caret); }

void ExMTextEditable::selectRange(std::size_t start, std::ptrdiff_t length, bool snap, bool keep) {
  std::size_t end = length < 0 ? m_text.parts.size() : start + static_cast<std::size_t>(length);
  if (snap) {
    start = editing::nearest_stop(m_text, start);
    end = editing::nearest_stop(m_text, end);
  }
  m_text.verify_mark({start, end});
  selection_scope scope(m_text);
  if (!keep) scope.selections.clear();
  scope.selections.emplace_back(start, end);
}

void ExMTextEditable::selectWordAt(const OdGePoint2d& at) {
  const auto is_letter = [this](std::size_t p) { return m_text.parts[p].type() == mtext::part_string; };
  const std::size_t hit = m_text.position_at(at.x, at.y).at;
  std::size_t first = hit, last = hit;
  if (hit < m_text.parts.size() && is_letter(hit)) {
    while (first > 0 && is_letter(first - 1)) --first;
    while (last < m_text.parts.size() && is_letter(last)) ++last;
  }
  selectRange(first, static_cast<std::ptrdiff_t>(last - first), /*snap=*/true, /*keep=*/false);
  recomputeCurrentFormats();
  notifyWatchers();
}

void ExMTextEditable::selectBetween(const OdGePoint2d& anchor, const OdGePoint2d& caret, bool keep) {
  selection range = editing::caret_at_point(m_text, anchor.x, anchor.y);
  const selection other = editing::caret_at_point(m_text, caret.x, caret.y);
  if (other.begin != range.begin) range = selection(range.begin, other.begin);
  selection_scope scope(m_text);
  if (!keep) scope.selections.clear();
  scope.selections.push_back(range);
}

void ExMTextEditable::keepFirstSelection() {
  selection_scope scope(m_text);
  if (scope.selections.size() > 1) scope.selections.resize(1);
}

void ExMTextEditable::setSelections(const std::vector<selection>& selections) {
  selection_scope(m_text).selections = selections;
}

std::vector<selection> ExMTextEditable::selections() const { return editing::selections_of(m_text); }
