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

// Selections.

/// Merges overlapping selections of `marks` in place, and returns `marks`. Selections that merely touch stay
/// two; a caret at the end of a selection vanishes into it. Merged selections stand behind all other marks.
mark_list& merge_selections(mark_list& marks);
/// Merges copies of the given selections among themselves and adds the result to `marks`, whose own stay as
/// they are.
void merge_selections(std::vector<const selection*> selections, mark_list& marks);
void merge_selections(std::vector<selection> selections, mark_list& marks);

/// Replaces all selections in `marks` by copies of the given ones, then slides them. The pointers may point
/// into `marks`.
void set_selections(const std::vector<const selection*>& selections, mark_list& marks);
void set_selections(const std::vector<selection>& selections, mark_list& marks);

/// Moves every end of every selection out of the solids, to the nearer legal stop; a tie goes behind the
/// solid.
void slide_selections(mark_list& marks);

/// Copies of all selections of `marks`, in their order.
std::vector<selection> selections_of(const mark_list& marks);

// Search.

/// The first solid of any kind with `begin` <= `at` < `end`; null if there is none.
solid* find_solid(mark_list& marks, std::size_t at);
const solid* find_solid(const mark_list& marks, std::size_t at);
/// The same for list labels.
numbering* find_numbering(mark_list& marks, std::size_t at);
const numbering* find_numbering(const mark_list& marks, std::size_t at);

/// Removes every solid that covers nothing.
void drop_empty_solids(mark_list& marks);

}  // namespace mtext::marks
