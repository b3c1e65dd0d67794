#include "editor/editable.h"
#include "editor/list_labels.h"
#include "mtext/dispose.h"
#include "mtext/entity/mtext_layout.h"
#include "mtext/format_at.h"

namespace {

/// Equal in place and caret side; the line end flag is only how a caret is shown.
bool same_places(const std::vector<mtext::marks::selection>& a,
                 const std::vector<mtext::marks::selection>& b) {
  const auto equal = [](const auto& x, const auto& y) {
    return x.begin == y.begin && x.end == y.end && x.caret_at_begin == y.caret_at_begin;
  };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), equal);
}

}  // namespace

void ExMTextEditable::recomputeCurrentFormats() {
  namespace format = mtext::format;
  const auto all = selections();
  for (std::size_t at = 0; at < all.size(); ++at) {
    const auto letters = format::current_format(m_text, m_default_format, all[at]);
    const auto paragraphs = format::current_paragraph_format(m_text, all[at]);
    m_current_format = at == 0 ? letters : format::intersection(m_current_format, letters);
    m_current_paragraph = at == 0 ? paragraphs : format::intersection(m_current_paragraph, paragraphs);
  }
}

void ExMTextEditable::layOut() {
  mtext::dispose(m_text);
  takeLayout();
}

void ExMTextEditable::takeLayout() {
  m_edit.reset();
  ++m_costs.layouts;
  m_frame.leading = mtext::last_line_leading(m_text);
  m_layout_dirty = false;
  recomputeCurrentFormats();
}

void ExMTextEditable::replaceText(mtext::geom_multitext text) {
  m_text = std::move(text);
  m_frame.leading = mtext::last_line_leading(m_text);
  m_layout_dirty = false;
  m_edit.reset();
  recomputeCurrentFormats();
  if (m_composed) displayComposition();
}

void ExMTextEditable::endOfEdit(bool relayout) {
  auto now = selections();
  const bool moved = !same_places(now, m_selections_before);
  if (moved) m_pending_format = {};
  m_selections_before = std::move(now);
  recomputeCurrentFormats();
  if (relayout) {
    if (m_numbering_dirty) renumber();
    if (m_finder && editing::clean_labels(m_text, *m_finder)) m_layout_dirty = true;
    if (m_layout_dirty) {
      layOut();
    } else if (m_edit) {
      mtext::dispose(m_text, *m_edit);
      takeLayout();
    }
  }
  if (m_composed) displayComposition();
  if (moved) notifyWatchers();
}
