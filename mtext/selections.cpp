#include <algorithm>

#include "mtext/marks.h"

namespace mtext::marks {
namespace {

bool is_selection(const mark& each) { return dynamic_cast<const selection*>(&each) != nullptr; }

std::vector<selection> copies_of(const std::vector<const selection*>& selections) {
  std::vector<selection> copies;
  copies.reserve(selections.size());
  for (const selection* each : selections) copies.push_back(*each);
  return copies;
}

}  // namespace

std::vector<selection> selections_of(const mark_list& marks) {
  std::vector<selection> found;
  for (const mark& each : marks) {
    if (const selection* chosen = dynamic_cast<const selection*>(&each)) found.push_back(*chosen);
  }
  return found;
}

void merge_selections(std::vector<selection> selections, mark_list& marks) {
  if (selections.empty()) return;
  std::stable_sort(selections.begin(), selections.end(),
                   [](const selection& a, const selection& b) { return a.begin < b.begin; });
  selection current = selections.front();
  for (const selection& each : selections) {
    if (each.begin < current.end) {
      current.end = std::max(current.end, each.end);
    } else if (!each.empty() || each.begin != current.end) {
      marks.push_back(current.clone());
      current = each;
    }
  }
  marks.push_back(current.clone());
}

void merge_selections(std::vector<const selection*> selections, mark_list& marks) {
  merge_selections(copies_of(selections), marks);
}

mark_list& merge_selections(mark_list& marks) {
  std::vector<selection> selections = selections_of(marks);
  marks.erase_if(is_selection);
  merge_selections(std::move(selections), marks);
  return marks;
}

void set_selections(const std::vector<selection>& selections, mark_list& marks) {
  marks.erase_if(is_selection);
  for (const selection& each : selections) marks.push_back(each.clone());
  slide_selections(marks);
}

void set_selections(const std::vector<const selection*>& selections, mark_list& marks) {
  set_selections(copies_of(selections), marks);
}

}  // namespace mtext::marks
