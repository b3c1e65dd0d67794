#include "editor/editable.h"
#include "editor/list_labels.h"
#include "editor/remembering_finder.h"
#include "editor/selection_scope.h"
#include "editor/word_bounds.h"
#include "mtext/format_at.h"
#include "mtext/marks.h"
#include "mtext/numbering.h"

using mtext::marks::numbering;

namespace {

/// The level that a list of `kind` begins with. An alphabet that the session does not have is the first one.
mtext::marks::index level_of_kind(std::uint32_t kind, std::size_t alphabet, std::size_t alphabets) {
  const bool lettered = kind == 1 || kind == 2;
  return {1, kind, lettered && alphabet < alphabets ? alphabet : 0};
}

}  // namespace

void ExMTextEditable::renumber() {
  ++m_costs.numberings;
  m_numbering_dirty = false;
  mtext::mark_numberings(m_text, m_letters);
  if (!editing::has_labels(m_text)) return;
  mtext::marks::update_numberings(m_text.marks, m_letters);
  const editing::label_end_scope ends(m_text);
  // All labels are written anew, and nearly all of them with the same few characters.
  mtext::update_every_numbering(m_text, remembering_finder(*m_finder), m_letters);
  m_layout_dirty = true;
}

void ExMTextEditable::removeLabel(std::size_t start) {
  numbering* label = editing::label_at(m_text, start);
  if (!label) return;
  mtext::clear_numbering(m_text, *label, mtext::paragraph_at(m_text, start));
  mtext::marks::drop_empty_solids(m_text.marks);
}

void ExMTextEditable::setLabel(std::size_t start, const mtext::marks::index& level) {
  if (numbering* label = editing::label_at(m_text, start)) {
    const editing::label_end_scope ends(m_text);
    label->indices.back() = level;
    mtext::update_numbering(m_text, *label, *m_finder, m_letters);
    return;
  }
  const auto format = mtext::format::insertion_format(m_text, m_default_format, start);
  m_text.insert(start, editing::label_to_insert({level}, format, textHeight(), *m_finder, m_letters));
  // A selection that ends where the paragraph begins would end in front of the label.
  const std::size_t behind = editing::label_at(m_text, start)->end;
  for (mtext::marks::selection* range : editing::selection_marks(m_text))
    if (!range->empty() && range->end == start) range->end = behind;
  editing::hang_label(mtext::paragraph_at(m_text, start));
}

void ExMTextEditable::setNumbering(int kind, std::size_t alphabet) {
  for (const mtext::marks::selection* range : editing::selection_marks(m_text)) {
    for (const std::size_t start : editing::paragraph_starts(m_text, *range)) {
      if (kind < 0)
        removeLabel(start);
      else
        setLabel(start, level_of_kind(static_cast<std::uint32_t>(kind), alphabet, m_letters.size()));
    }
  }
  m_numbering_dirty = m_layout_dirty = true;
}
