#pragma once

#include <vector>

#include "mtext/mark.h"

namespace mtext::marks {

// What an edit does to marks. Only the members of `geom_multitext` that move parts call these.

/// Tells `marks` that `count` parts were inserted at `at`: a mark that begins there or behind moves, one that
/// spans the position grows, one that ends there stays.
void adjust_inserted(mark_list& marks, std::size_t at, std::size_t count);

/// Tells `marks` that `count` parts were erased from `first` on: what lay inside collapses onto `first`.
void adjust_erased(mark_list& marks, std::size_t first, std::size_t count);

/// Tells `marks` that `ranges`, which ascend and do not overlap, were replaced: as if each were erased and
/// its new parts inserted in its place, from the first to the last. Costs log n for each mark.
void adjust_replaced(mark_list& marks, const std::vector<replaced_range>& ranges);

}  // namespace mtext::marks
