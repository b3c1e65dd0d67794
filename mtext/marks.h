#pragma once

#include <vector>

#include "mtext/mark.h"
#include "od/base/export.h"

namespace mtext::marks {

// Selections.

/// Merges overlapping selections of `marks` in place, and returns `marks`. Selections that merely touch stay
/// two; a caret at the end of a selection vanishes into it. Merged selections stand behind all other marks.
SCRIBE_EXPORT mark_list& merge_selections(mark_list& marks);
/// Merges copies of the given selections among themselves and adds the result to `marks`, whose own stay as
/// they are.
SCRIBE_EXPORT void merge_selections(std::vector<const selection*> selections, mark_list& marks);
SCRIBE_EXPORT void merge_selections(std::vector<selection> selections, mark_list& marks);

/// Replaces all selections in `marks` by copies of the given ones, then slides them. The pointers may point
/// into `marks`.
SCRIBE_EXPORT void set_selections(const std::vector<const selection*>& selections, mark_list& marks);
SCRIBE_EXPORT void set_selections(const std::vector<selection>& selections, mark_list& marks);

/// Moves every end of every selection out of the solids, to the nearer legal stop; a tie goes behind the
/// solid.
SCRIBE_EXPORT void slide_selections(mark_list& marks);

/// Copies of all selections of `marks`, in their order.
SCRIBE_EXPORT std::vector<selection> selections_of(const mark_list& marks);

// Search.

/// The first solid of any kind with `begin` <= `at` < `end`; null if there is none.
SCRIBE_EXPORT solid* find_solid(mark_list& marks, std::size_t at);
SCRIBE_EXPORT const solid* find_solid(const mark_list& marks, std::size_t at);
/// The same for list labels.
SCRIBE_EXPORT numbering* find_numbering(mark_list& marks, std::size_t at);
SCRIBE_EXPORT const numbering* find_numbering(const mark_list& marks, std::size_t at);

/// Removes every solid that covers nothing.
SCRIBE_EXPORT void drop_empty_solids(mark_list& marks);

}  // namespace mtext::marks
