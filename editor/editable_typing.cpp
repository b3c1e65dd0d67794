#include <algorithm>

#include "editor/editable.h"
#include "editor/part_kinds.h"
#include "editor/selection_scope.h"
#include "mtext/format_at.h"
#include "mtext/surrogate_pair.h"
#include "mtext/to_geom.h"

mtext::format::string ExMTextEditable::insertionFormat(const mtext::marks::selection& selection) const {
  const auto format = mtext::format::insertion_format(m_text, m_default_format, selection);
  return mtext::format::applied_to(format, m_pending_format);
}

void ExMTextEditable::noteEdit(std::size_t at, std::size_t count, bool paragraph_ends) {
  // The halves of a pair on both sides may have been measured anew.
  const std::size_t before = at - std::min<std::size_t>(at, 1);
  const std::size_t behind = m_text.parts.size() - std::min(at + count + 1, m_text.parts.size());
  if (!m_edit) m_edit = mtext::text_edit{before, behind, false};
  m_edit->before = std::min(m_edit->before, before);
  m_edit->behind = std::min(m_edit->behind, behind);
  m_edit->paragraph_ends |= paragraph_ends;
}

void ExMTextEditable::eraseRange(const mtext::marks::mark& range) {
  if (range.empty()) return;
  const std::size_t begin = range.begin;
  const auto first = m_text.parts.begin();
  const bool ends = std::any_of(first + static_cast<std::ptrdiff_t>(begin),
                                first + static_cast<std::ptrdiff_t>(range.end), editing::is_paragraph_end);
  m_text.erase(range, /*drop_empty=*/true);
  mtext::measure_pair(m_text.parts, begin, *m_finder);
  noteEdit(begin, 0, ends);
}

void ExMTextEditable::insertParts(std::size_t at, mtext::geom_multitext made) {
  const std::size_t count = made.parts.size();
  const bool ends = std::any_of(made.parts.begin(), made.parts.end(), editing::is_paragraph_end);
  m_text.insert(at, std::move(made));
  // Halves that met where the new text begins and ends.
  mtext::measure_pair(m_text.parts, at, *m_finder);
  mtext::measure_pair(m_text.parts, at + count, *m_finder);
  noteEdit(at, count, ends);
}

void ExMTextEditable::replaceSelections(const insertion& make) {
  for (mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const mtext::format::string format = insertionFormat(*range);
    eraseRange(*range);
    insertParts(range->begin, make(format, range->begin));
    range->caret_at_begin = range->at_line_end = false;
  }
  m_numbering_dirty = true;
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
