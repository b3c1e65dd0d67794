#include "editor/editable.h"
#include "editor/list_labels.h"
#include "editor/selection_scope.h"
#include "editor/word_bounds.h"
#include "mtext/format_at.h"
#include "mtext/marks.h"
#include "mtext/numbering.h"
#include "mtext/to_geom.h"

using mtext::marks::numbering;

namespace {

constexpr double kStopDistance = 3.0;  ///< of the stops that indenting adds, in text heights

/// What indenting does to the stops of an item's paragraph, before its level changes.
void step_tabs(mtext::format::tab_list& tabs, bool back) {
  auto& stops = tabs.edit();
  if (!back)
    stops.push_back({kStopDistance * static_cast<double>(stops.size()), 0, u' '});
  else if (!stops.empty())
    stops.erase(stops.begin());
}

}  // namespace

void ExMTextEditable::indentLabel(numbering& label, bool back) {
  const editing::label_end_scope ends(m_text);
  mtext::indent_numbering(m_text, label, mtext::paragraph_at(m_text, label.begin), *m_finder, !back,
                          m_letters);
  m_numbering_dirty = true;
}

void ExMTextEditable::indentParagraphs(const mtext::marks::mark& range, bool back) {
  for (const std::size_t start : editing::paragraph_starts(m_text, range)) {
    if (numbering* label = editing::label_at(m_text, start)) {
      step_tabs(mtext::paragraph_at(m_text, start).tabs, back);
      indentLabel(*label, back);
      continue;
    }
    const bool has_tab = start < m_text.parts.size() && m_text.parts[start].type() == mtext::part_tab;
    if (back && has_tab) m_text.erase(start, 1, /*drop_empty=*/true);
    if (back) continue;
    const auto format = mtext::format::insertion_format(m_text, m_default_format, start);
    m_text.insert(start, mtext::to_geom(u'\t', format, textHeight(), *m_finder));
  }
}

void ExMTextEditable::startList(std::size_t behind_tab) {
  const std::size_t start = editing::paragraph_start(m_text, behind_tab);
  auto levels = editing::levels_of(m_text, start, behind_tab - 1, m_letters);
  if (!levels) return;
  editing::hang_label(mtext::paragraph_at(m_text, start));
  m_text.marks.push_back(new numbering(start, behind_tab, std::move(*levels)));
  m_numbering_dirty = true;
}

void ExMTextEditable::tabAtCaret(mtext::marks::selection& caret, bool shift) {
  if (numbering* label = editing::label_before(m_text, caret.begin)) {
    indentLabel(*label, shift);
    caret.begin = caret.end = label->end;
  } else if (!shift) {
    m_text.insert(caret.begin, mtext::to_geom(u'\t', insertionFormat(caret), textHeight(), *m_finder));
    startList(caret.begin);
  }
  caret.at_line_end = false;
}

void ExMTextEditable::insertTab(bool shift) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    if (range->empty())
      tabAtCaret(*range, shift);
    else
      indentParagraphs(*range, shift);
    // An item that went up from the first level is none any more.
    mtext::marks::drop_empty_solids(m_text.marks);
  }
  m_layout_dirty = true;
}
