#include <algorithm>

#include "editor/caret_steps.h"
#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/dispose.h"
#include "mtext/format_at.h"
#include "mtext/to_geom.h"

namespace format = mtext::format;

void ExMTextEditable::compose(const HostComposition& composition) {
  m_composition = composition;
  displayComposition();
}

void ExMTextEditable::displayComposition() {
  m_composed.reset();
  if (m_composition.text.empty()) return;
  mtext::geom_multitext shown = m_text;
  for (mtext::marks::selection* range : editing::selection_marks(shown)) {
    format::string letters = format::insertion_format(shown, m_default_format, *range);
    letters = format::applied_to(letters, m_pending_format);
    letters.flags |= format::flag_underline;
    if (!range->empty()) shown.erase(*range, /*drop_empty=*/true);
    const std::size_t begin = range->begin;
    const auto composed = mtext::to_geom(m_composition.text, letters, textHeight(), *m_finder);
    shown.insert(begin, composed);
    const std::size_t caret = begin + std::min(m_composition.caret, composed.parts.size());
    *range = mtext::marks::selection(editing::off_pair(shown, caret));
  }
  mtext::dispose(shown);
  m_composed = std::move(shown);
}
