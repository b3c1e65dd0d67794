#include <algorithm>

#include "fuzz/edit_steps.h"
#include "fuzz/layout_laws.h"
#include "fuzz/require.h"
#include "mtext/mark_sweep.h"
#include "mtext/marks.h"

namespace fuzz {
namespace {

using namespace mtext;

void add_selection(geom_multitext& text, byte_source& input) {
  const std::size_t anchor = input.up_to(text.parts.size());
  text.marks.push_back(new marks::selection(anchor, input.up_to(text.parts.size())));
}

void add_solid(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  text.marks.push_back(new marks::solid(range.first, range.first + range.count, input.flag()));
}

void add_field(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  text.marks.push_back(new marks::field(range.first, range.first + range.count, u"code"));
}

void add_label(geom_multitext& text, byte_source& input) {
  const part_range range = range_in(text, input);
  std::vector<marks::index> levels(1 + input.up_to(3));
  for (marks::index& each : levels) each = {input.byte(), static_cast<std::uint32_t>(input.up_to(3)), 0};
  text.marks.push_back(new marks::numbering(range.first, range.first + range.count, levels));
}

/// Selections do not overlap after they were merged, and cover what they covered before.
void merge(geom_multitext& text, byte_source&) {
  const std::vector<marks::selection> before = marks::selections_of(text.marks);
  marks::merge_selections(text.marks);
  const std::vector<marks::selection> merged = marks::selections_of(text.marks);
  require(merged.size() <= before.size() && merged.empty() == before.empty(), "merging makes no selections");
  for (std::size_t i = 1; i < merged.size(); ++i) {
    require(merged[i - 1].begin <= merged[i].begin, "merged selections ascend");
    require(merged[i - 1].end <= merged[i].begin, "merged selections do not overlap");
  }
  for (const marks::selection& each : before) {
    require(
        std::any_of(merged.begin(), merged.end(),
                    [&](const auto& other) { return other.begin <= each.begin && each.end <= other.end; }),
        "each selection lies in a merged one");
  }
}

/// Whether a caret may stand at a position as far as `each` is concerned.
bool is_legal_stop(const marks::solid& each, std::size_t at) {
  return at < each.begin || at >= each.end || (each.include_begin && at == each.begin);
}

std::vector<const marks::solid*> solids_of(const geom_multitext& text) {
  std::vector<const marks::solid*> found;
  for (const marks::mark& each : text.marks) {
    const auto* solid = dynamic_cast<const marks::solid*>(&each);
    if (solid && !solid->empty()) found.push_back(solid);
  }
  return found;
}

/// Without solids nothing slides; out of a single one all do. Several may lie in each other's way.
void slide(geom_multitext& text, byte_source&) {
  const geom_multitext before(text);
  marks::slide_selections(text.marks);
  const std::vector<const marks::solid*> solids = solids_of(text);
  if (solids.empty()) require(same_marks(text, before), "nothing slides without solids");
  require(text.marks.size() == before.marks.size(), "sliding keeps all marks");
  if (solids.size() != 1) return;
  for (const marks::selection& each : marks::selections_of(text.marks)) {
    require(is_legal_stop(*solids[0], each.begin), "a selection begins at a legal stop");
    require(is_legal_stop(*solids[0], each.end), "a selection ends at a legal stop");
  }
}

void set(geom_multitext& text, byte_source& input) {
  std::vector<marks::selection> chosen;
  for (std::size_t i = input.up_to(3); i > 0; --i) {
    const std::size_t anchor = input.up_to(text.parts.size());
    chosen.emplace_back(anchor, input.up_to(text.parts.size()));
  }
  marks::set_selections(chosen, text.marks);
  require(marks::selections_of(text.marks).size() == chosen.size(), "the selections are those that were set");
}

void search(geom_multitext& text, byte_source&) {
  marks::mark_sweep<marks::solid> sweep(text.marks);
  for (std::size_t at = 0; at <= text.parts.size(); ++at)
    require(sweep.at(at) == marks::find_solid(text.marks, at), "a sweep finds what a search finds");
}

void drop(geom_multitext& text, byte_source& input) {
  marks::drop_empty_solids(text.marks);
  if (text.marks.size() > 30) text.marks.erase(text.marks.begin(), text.marks.begin() + 15);
  if (!text.marks.empty() && input.flag()) text.marks.pop_back();
}

}  // namespace

void edit_marks(geom_multitext& text, byte_source& input) {
  using step = void (*)(geom_multitext&, byte_source&);
  static constexpr step steps[] = {add_selection, add_solid, add_field, add_label, merge,
                                   slide,         set,       search,    drop};
  input.one_of(steps)(text, input);
}

}  // namespace fuzz
