#include <algorithm>

#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/format_range.h"
#include "mtext/surrogate_pair.h"

namespace {

/// A height given as a factor in drawing units, as laid-out parts keep it.
mtext::format::string_partial resolved(mtext::format::string_partial change, double text_height) {
  if (change.height && change.height->second == 1) change.height = {change.height->first * text_height, 0};
  return change;
}

}  // namespace

void ExMTextEditable::remeasure(std::size_t first, std::size_t last) {
  for (std::size_t at = first; at < last; ++at) m_text.parts[at].update(*m_finder);
  for (std::size_t at = first; at <= last; ++at) mtext::measure_pair(m_text.parts, at, *m_finder);
}

void ExMTextEditable::applyFormat(const mtext::format::string_partial& change) {
  mtext::format::apply_to(m_pending_format, change);
  const auto part_change = resolved(change, textHeight());
  for (const mtext::marks::selection* range : editing::selection_marks(m_text)) {
    const auto begin = m_text.parts.begin();
    mtext::format::apply_to(begin + static_cast<std::ptrdiff_t>(range->begin),
                            begin + static_cast<std::ptrdiff_t>(range->end), part_change);
    remeasure(range->begin, range->end);
  }
  m_layout_dirty = true;
  recomputeCurrentFormats();
}

mtext::format::string_partial ExMTextEditable::shownFormat() const {
  const auto all = selections();
  const bool carets =
      std::all_of(all.begin(), all.end(), [](const mtext::marks::selection& each) { return each.empty(); });
  const auto& shown = m_current_format;
  return resolved(carets ? mtext::format::applied_to(shown, m_pending_format) : shown, textHeight());
}
