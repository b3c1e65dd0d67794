#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "editor/word_bounds.h"
#include "mtext/format_at.h"
#include "mtext/to_geom.h"

namespace {

/// First positions of the paragraphs that `range` touches, the last paragraph first: an edit at one leaves
/// those still to come where they are.
std::vector<std::size_t> paragraphs_of(const mtext::geom_multitext& text, const mtext::marks::mark& range) {
  std::vector<std::size_t> starts{editing::paragraph_start(text, range.end)};
  while (starts.back() > range.begin) starts.push_back(editing::paragraph_start(text, starts.back() - 1));
  return starts;
}

}  // namespace

void ExMTextEditable::indentParagraphs(const mtext::marks::mark& range, bool back) {
  for (const std::size_t start : paragraphs_of(m_text, range)) {
    const bool has_tab = start < m_text.parts.size() && m_text.parts[start].type() == mtext::part_tab;
    if (back && has_tab) m_text.erase(start, 1, /*drop_empty=*/true);
    if (back) continue;
    const auto format = mtext::format::insertion_format(m_text, m_default_format, start);
    m_text.insert(start, mtext::to_geom(u'\t', format, textHeight(), *m_finder));
  }
}

void ExMTextEditable::insertTab(bool shift) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    if (!range->empty()) {
      indentParagraphs(*range, shift);
    } else if (!shift) {
      m_text.insert(range->begin, mtext::to_geom(u'\t', insertionFormat(*range), textHeight(), *m_finder));
      range->at_line_end = false;
    }
  }
  m_layout_dirty = true;
}
