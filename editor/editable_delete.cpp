#include "editor/caret_steps.h"
#include "editor/editable.h"
#include "editor/part_kinds.h"
#include "editor/selection_scope.h"
#include "editor/solid_stops.h"
#include "editor/word_bounds.h"

using mtext::marks::mark;
using mtext::marks::selection;

namespace {

/// What Backspace leaves of a paragraph's format: no indents, no tabs, left aligned.
mtext::format::paragraph plain_paragraph() { return {.alignment = 1}; }

bool differs_from_plain(const mtext::format::paragraph& paragraph, double height) {
  const auto change = mtext::format::merge(height, plain_paragraph(), paragraph);
  return change.indent || change.left || change.right || change.before || change.after || change.alignment ||
         change.spacing || change.tabs;
}

/// The format of the paragraph that begins at `at`, or null where none begins.
mtext::format::paragraph* paragraph_beginning_at(mtext::geom_multitext& text, std::size_t at) {
  const bool begins = at == 0 || editing::is_paragraph_end(text.parts[at - 1]);
  return begins ? &mtext::paragraph_at(text, at) : nullptr;
}

/// What Backspace at a caret erases: a whole word, a whole solid, or one character.
mark range_before(const mtext::geom_multitext& text, std::size_t at, bool word) {
  if (const auto* solid = editing::solid_ending_at(text, at)) return {solid->begin, solid->end};
  return {word ? editing::word_start(text, at) : editing::step_left(text, at), at};
}

}  // namespace

bool ExMTextEditable::deleteBackAt(const selection& range, bool word) {
  const std::size_t at = range.begin;
  if (!range.empty()) {
    eraseRange(range);
    return false;
  }
  auto* paragraph = paragraph_beginning_at(m_text, at);
  // The first Backspace takes the paragraph's format, the next one joins it to the paragraph before.
  if (paragraph && (at == 0 || differs_from_plain(*paragraph, textHeight()))) {
    *paragraph = plain_paragraph();
    m_layout_dirty = true;
    return false;
  }
  const bool is_word = word && !editing::solid_ending_at(m_text, at);
  eraseRange(range_before(m_text, at, word));
  return is_word;
}

void ExMTextEditable::deleteBack(bool word) {
  for (const selection* range : editing::selection_marks(m_text)) {
    m_numbering_dirty = true;
    // The labels are counted at once, since the next word starts where the text now is. No word depends on
    // the layout, which waits for the end.
    if (deleteBackAt(*range, word)) renumber();
  }
}

void ExMTextEditable::deleteForward() {
  for (const selection* range : editing::selection_marks(m_text)) {
    if (!range->empty()) {
      eraseRange(*range);
    } else if (range->begin < m_text.parts.size()) {
      eraseRange({range->begin, editing::step_right(m_text, range->begin)});
      // What is left of a field whose first character went goes too; so does a field that stood behind the
      // character, which is deliberate: Delete in front of a field takes it whole.
      if (const auto* solid = editing::solid_beginning_at(m_text, range->begin))
        eraseRange({solid->begin, solid->end});
    }
  }
  m_numbering_dirty = true;
}

void ExMTextEditable::deleteSelection(bool mark_changed) {
  for (const selection* range : editing::selection_marks(m_text)) eraseRange(*range);
  if (mark_changed) m_numbering_dirty = true;
}
