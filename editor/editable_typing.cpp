#include <algorithm>

#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/format_at.h"
#include "mtext/surrogate_pair.h"
#include "mtext/to_geom.h"

mtext::format::string ExMTextEditable::insertionFormat(const mtext::marks::selection& selection) const {
  const auto format = mtext::format::insertion_format(m_text, m_default_format, selection);
  return mtext::format::applied_to(format, m_pending_format);
}

void ExMTextEditable::eraseRange(const mtext::marks::mark& range) {
  if (range.empty()) return;
  const std::size_t begin = range.begin;
  m_text.erase(range, /*drop_empty=*/true);
  mtext::measure_pair(m_text.parts, begin, *m_finder);
}

void ExMTextEditable::replaceSelections(const insertion& make) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const mtext::format::string format = insertionFormat(*range);
    eraseRange(*range);
    const std::size_t begin = range->begin;
    const auto made = make(format, begin);
    m_text.insert(begin, made);
    // Halves that met where the new text begins and ends.
    mtext::measure_pair(m_text.parts, begin, *m_finder);
    mtext::measure_pair(m_text.parts, begin + made.parts.size(), *m_finder);
    range->caret_at_begin = range->at_line_end = false;
  }
  m_numbering_dirty = m_layout_dirty = true;
}

void ExMTextEditable::insertChar(char16_t character) {
  replaceSelections([&](const mtext::format::string& format, std::size_t) {
    return mtext::to_geom(character, format, textHeight(), *m_finder);
  });
}

void ExMTextEditable::insertText(std::u16string_view text) {
  replaceSelections([&](const mtext::format::string& format, std::size_t) {
    return mtext::to_geom(text, format, textHeight(), *m_finder);
  });
}

void ExMTextEditable::insertLineBreak() { insertChar(u'\n'); }

void ExMTextEditable::insertNonBreakingSpace() {
  replaceSelections([&](const mtext::format::string& format, std::size_t) {
    return mtext::to_geom(mtext::string(format, u" "), textHeight(), *m_finder);
  });
}
