#include <stdexcept>

#include "mtext/geom_multitext.h"
#include "mtext/marks.h"

namespace mtext {
namespace {

/// What the replacements are to the marks. Throws unless they ascend, do not overlap, and lie within `size`
/// parts.
std::vector<marks::replaced_range> checked_ranges(const std::vector<part_replacement>& replacements,
                                                  std::size_t size) {
  std::vector<marks::replaced_range> ranges;
  std::size_t position = 0;
  for (const part_replacement& each : replacements) {
    if (each.first < position || each.first > size || each.count > size - each.first) {
      throw std::invalid_argument("geom_multitext::replace: invalid positions");
    }
    position = each.first + each.count;
    ranges.push_back({each.first, each.count, each.parts.size()});
  }
  return ranges;
}

/// Takes the elements from `first` on away from `parts`.
geom_parts take_from(geom_parts& parts, std::size_t first) {
  geom_parts taken;
  taken.transfer(taken.end(), parts.begin() + first, parts.end(), parts);
  return taken;
}

}  // namespace

void geom_multitext::replace(std::vector<part_replacement> replacements) {
  const std::vector<marks::replaced_range> ranges = checked_ranges(replacements, parts.size());
  // From the end, where taking elements away costs no more than those elements.
  std::vector<geom_parts> pieces;
  std::size_t size = 0;
  for (auto each = replacements.rbegin(); each != replacements.rend(); ++each) {
    pieces.push_back(take_from(parts, each->first + each->count));
    parts.erase(parts.begin() + each->first, parts.end());
    size += pieces.back().size() + each->parts.size();
    pieces.push_back(std::move(each->parts));
  }
  parts.reserve(parts.size() + size);
  for (; !pieces.empty(); pieces.pop_back()) parts.transfer(parts.end(), pieces.back());
  marks::adjust_replaced(marks, ranges);
}

}  // namespace mtext
