#include "editor/selection_scope.h"

#include <algorithm>

#include "editor/caret_steps.h"
#include "mtext/marks.h"

namespace editing {

std::vector<mtext::marks::selection*> selection_marks(mtext::geom_multitext& text) {
  std::vector<mtext::marks::selection*> found;
  for (auto& mark : text.marks)
    if (auto* selection = dynamic_cast<mtext::marks::selection*>(&mark)) found.push_back(selection);
  std::stable_sort(found.begin(), found.end(),
                   [](const auto* a, const auto* b) { return a->begin < b->begin; });
  return found;
}

std::vector<mtext::marks::selection> selections_of(const mtext::geom_multitext& text) {
  auto found = mtext::marks::selections_of(text.marks);
  std::stable_sort(found.begin(), found.end(),
                   [](const auto& a, const auto& b) { return a.begin < b.begin; });
  return found;
}

}  // namespace editing

selection_scope::selection_scope(mtext::geom_multitext& text)
    : selections(editing::selections_of(text)), m_text(text) {}

selection_scope::~selection_scope() {
  for (auto& range : selections) editing::leave_pairs(m_text, range);
  mtext::marks::set_selections(selections, m_text.marks);
  mtext::marks::merge_selections(m_text.marks);
}
