#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/format_range.h"

void ExMTextEditable::applyParagraph(const mtext::format::paragraph_partial& change) {
  for (const mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const auto begin = m_text.parts.begin();
    mtext::format::apply_to(mtext::paragraph_at(m_text, range->begin),
                            begin + static_cast<std::ptrdiff_t>(range->begin),
                            begin + static_cast<std::ptrdiff_t>(range->end), change);
  }
  m_layout_dirty = true;
}
