#include <unicode/uchar.h>

#include "editor/editable.h"
#include "editor/selection_scope.h"
#include "mtext/mark_sweep.h"

namespace {

/// One unit becomes one unit, so that no text changes its length.
void change_case(std::u16string& text, bool to_upper) {
  for (char16_t& unit : text) unit = static_cast<char16_t>(to_upper ? u_toupper(unit) : u_tolower(unit));
}

void change_case(mtext::geom_part& part, bool to_upper) {
  if (part.type() == mtext::part_string) change_case(static_cast<mtext::geom_word&>(part).text, to_upper);
  if (part.type() != mtext::part_stack) return;
  auto& stack = static_cast<mtext::geom_stack&>(part);
  change_case(stack.numerator, to_upper);
  change_case(stack.denominator, to_upper);
}

}  // namespace

void ExMTextEditable::changeCase(bool to_upper) {
  mtext::marks::mark_sweep<mtext::marks::solid> solids(m_text.marks);
  for (const mtext::marks::selection* range : editing::selection_marks(m_text)) {
    for (std::size_t at = range->begin; at < range->end; ++at)
      if (!solids.at(at)) change_case(m_text.parts[at], to_upper);
    remeasure(range->begin, range->end);
  }
  m_layout_dirty = true;
}
