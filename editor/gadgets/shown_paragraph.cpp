#include "editor/gadgets/shown_paragraph.h"

#include <algorithm>

#include "mtext/marks.h"

namespace mtext {

namespace {

bool overlaps(const marks::selection& range, const geom_column& span) {
  if (range.empty()) return span.first <= range.begin && range.begin < span.last;
  return range.begin < span.last && span.first < range.end;
}

}  // namespace

const format::paragraph* shown_paragraph(const geom_multitext& text, std::size_t index) {
  if (index >= text.columns.size()) return nullptr;
  auto selections = marks::selections_of(text.marks);
  std::stable_sort(selections.begin(), selections.end(),
                   [](const auto& a, const auto& b) { return a.begin < b.begin; });
  for (const marks::selection& range : selections)
    if (overlaps(range, text.columns[index])) return &paragraph_at(text, range.begin);
  return nullptr;
}

}  // namespace mtext
