#include <algorithm>

#include "editor/editable.h"
#include "editor/list_labels.h"
#include "editor/selection_scope.h"
#include "editor/word_bounds.h"
#include "mtext/format_range.h"
#include "mtext/to_geom.h"

namespace {

/// More columns than this no text may get by typing.
constexpr std::size_t kMostColumns = 100;

/// The levels of the item behind one with `levels`.
std::vector<mtext::marks::index> next_item(std::vector<mtext::marks::index> levels) {
  ++levels.back().value;
  return levels;
}

}  // namespace

void ExMTextEditable::startParagraph(std::size_t at, const mtext::format::string& format, bool column_break) {
  const std::size_t start = editing::paragraph_start(m_text, at);
  const auto* label = editing::label_at(m_text, start);
  std::vector<mtext::marks::index> next;
  if (label && label->end == at) {
    // An item without text ends the list, so a second Enter leaves it.
    removeLabel(start);
    m_layout_dirty = true;
    at = start;
  } else if (label && label->end < at) {
    next = next_item(label->indices);
  }
  const mtext::new_paragraph end(mtext::paragraph_at(m_text, at), format, column_break);
  insertParts(at, mtext::to_geom(end, textHeight(), *m_finder));
  if (!next.empty())
    insertParts(at + 1, editing::label_to_insert(next, format, textHeight(), *m_finder, m_letters));
}

void ExMTextEditable::insertParagraph(bool column_break) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const mtext::format::string format = insertionFormat(*range);
    eraseRange(*range);
    startParagraph(range->begin, format, column_break);
    range->caret_at_begin = range->at_line_end = false;
  }
  // The items behind keep their numbers until the next typing or deleting. That is deliberate.
}

void ExMTextEditable::insertColumnBreak() {
  if (std::max(m_text.columns.size(), m_text.info.columns.heights.size()) >= kMostColumns) return;
  insertParagraph(/*column_break=*/true);
  layOut();
}

void ExMTextEditable::applyParagraph(const mtext::format::paragraph_partial& change) {
  for (const mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const auto begin = m_text.parts.begin();
    mtext::format::apply_to(mtext::paragraph_at(m_text, range->begin),
                            begin + static_cast<std::ptrdiff_t>(range->begin),
                            begin + static_cast<std::ptrdiff_t>(range->end), change);
  }
  m_layout_dirty = true;
}
