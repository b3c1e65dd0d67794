#pragma once

#include <cstddef>

#include "mtext/marks.h"

/// The two ends of a selection by what they are for, where the record keeps them by which is smaller.
namespace editing {

/// The end that moves.
inline std::size_t caret_of(const mtext::marks::selection& range) {
  return range.caret_at_begin ? range.begin : range.end;
}

/// The end that stays.
inline std::size_t anchor_of(const mtext::marks::selection& range) {
  return range.caret_at_begin ? range.end : range.begin;
}

inline bool is_caret(const mtext::marks::selection& range) { return range.begin == range.end; }

/// Puts the caret of `range` to `caret` while its anchor stays; the line end flag goes.
inline void move_caret(mtext::marks::selection& range, std::size_t caret) {
  range = mtext::marks::selection(anchor_of(range), caret);
}

/// Makes `range` an empty selection at `position`; the line end flag goes.
inline void collapse_to(mtext::marks::selection& range, std::size_t position) {
  range = mtext::marks::selection(position);
}

}  // namespace editing
