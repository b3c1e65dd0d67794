#include <algorithm>

#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/format_at.h"
#include "mtext/to_geom.h"

mtext::format::string ExMTextEditable::insertionFormat(const mtext::marks::selection& selection) const {
  const auto format = mtext::format::insertion_format(m_text, m_default_format, selection);
  return mtext::format::applied_to(format, m_pending_format);
}

void ExMTextEditable::eraseRange(const mtext::marks::mark& range) {
  if (!range.empty()) m_text.erase(range, /*drop_empty=*/true);
}

void ExMTextEditable::replaceSelections(const insertion& make) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const mtext::format::string format = insertionFormat(*range);
    eraseRange(*range);
    m_text.insert(range->begin, make(format, range->begin));
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
