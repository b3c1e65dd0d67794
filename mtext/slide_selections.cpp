#include <algorithm>

#include "mtext/mark_sweep.h"
#include "mtext/marks.h"

namespace mtext::marks {
namespace {

/// Whether the stop before a solid exists: there is none before a list label that opens the text.
bool has_stop_before(const solid& range) { return range.include_begin || range.begin > 0; }

/// Where a position that `range` covers comes to stand.
std::size_t slid_out_of(const solid& range, std::size_t position) {
  if (!has_stop_before(range)) return range.end;
  const std::size_t before = range.include_begin ? range.begin : range.begin - 1;
  if (position <= before) return position;
  return position - before < range.end - position ? before : range.end;
}

/// One end of a selection, and where it goes.
struct selection_end {
  selection* owner;
  bool is_caret;
  std::size_t position;
};

std::vector<selection_end> ends_of_selections(mark_list& marks) {
  std::vector<selection_end> ends;
  for (mark& each : marks) {
    if (selection* owner = dynamic_cast<selection*>(&each)) {
      ends.push_back({owner, false, owner->anchor()});
      ends.push_back({owner, true, owner->caret()});
    }
  }
  return ends;
}

void move_end(const selection_end& end, std::size_t position) {
  selection& owner = *end.owner;
  const std::size_t anchor = end.is_caret ? owner.anchor() : position;
  const std::size_t caret = end.is_caret ? position : owner.caret();
  owner.begin = std::min(anchor, caret);
  owner.end = std::max(anchor, caret);
  owner.caret_at_begin = caret < anchor;
}

}  // namespace

void slide_selections(mark_list& marks) {
  std::vector<selection_end> ends = ends_of_selections(marks);
  std::stable_sort(ends.begin(), ends.end(),
                   [](const selection_end& a, const selection_end& b) { return a.position < b.position; });
  mark_sweep<solid> solids(marks);
  for (const selection_end& end : ends) {
    const solid* range = solids.at(end.position);
    if (range) move_end(end, slid_out_of(*range, end.position));
  }
}

}  // namespace mtext::marks
