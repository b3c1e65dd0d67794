#include <algorithm>
#include <stdexcept>

#include "mtext/geom_multitext.h"
#include "mtext/marks_adjust.h"

namespace mtext {
namespace {

/// Throws unless the ranges ascend, do not overlap, lie within `size` parts, and have `new_size` new ones.
void check_ranges(const std::vector<marks::replaced_range>& ranges, std::size_t size, std::size_t new_size) {
  std::size_t position = 0;
  std::size_t rest = new_size;
  bool right = true;
  for (const marks::replaced_range& each : ranges) {
    right = right && each.first >= position && each.first <= size && each.count <= size - each.first &&
            each.new_count <= rest;
    position = each.first + each.count;
    rest -= each.new_count;
  }
  if (!right || rest != 0) throw std::invalid_argument("geom_multitext::replace: invalid positions");
}

/// The `size` parts at `old` with the new ones at `fresh` in their places, and behind all of them those that
/// were replaced.
std::vector<geom_part*> in_order(geom_part* const* old, std::size_t size, geom_part* const* fresh,
                                 const std::vector<marks::replaced_range>& ranges) {
  std::vector<geom_part*> ordered;
  std::vector<geom_part*> replaced;
  std::size_t position = 0;
  for (const marks::replaced_range& each : ranges) {
    const std::size_t end = each.first + each.count;
    ordered.insert(ordered.end(), old + position, old + each.first);
    ordered.insert(ordered.end(), fresh, fresh + each.new_count);
    replaced.insert(replaced.end(), old + each.first, old + end);
    fresh += each.new_count;
    position = end;
  }
  ordered.insert(ordered.end(), old + position, old + size);
  ordered.insert(ordered.end(), replaced.begin(), replaced.end());
  return ordered;
}

}  // namespace

void geom_multitext::replace(const std::vector<mtext::marks::replaced_range>& ranges, geom_parts& new_parts) {
  const std::size_t size = parts.size();
  check_ranges(ranges, size, new_parts.size());
  // All memory is taken before anything moves, so that nothing can fail halfway.
  const std::vector<geom_part*> ordered = in_order(parts.c_array(), size, new_parts.c_array(), ranges);
  parts.reserve(ordered.size());
  mtext::marks::adjust_replaced(marks, ranges);
  parts.transfer(parts.end(), new_parts);
  std::copy(ordered.begin(), ordered.end(), parts.c_array());
  std::size_t replaced = 0;
  for (const mtext::marks::replaced_range& each : ranges) replaced += each.count;
  parts.erase(parts.end() - replaced, parts.end());
}

}  // namespace mtext
