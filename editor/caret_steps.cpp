#include "editor/caret_steps.h"

#include "mtext/surrogate_pair.h"

namespace editing {

std::size_t step_left(const mtext::geom_multitext& text, std::size_t position) {
  return mtext::splits_pair(text.parts, position - 1) ? position - 2 : position - 1;
}

std::size_t step_right(const mtext::geom_multitext& text, std::size_t position) {
  return off_pair(text, position + 1);
}

std::size_t off_pair(const mtext::geom_multitext& text, std::size_t position) {
  return mtext::splits_pair(text.parts, position) ? position + 1 : position;
}

void leave_pairs(const mtext::geom_multitext& text, mtext::marks::selection& range) {
  const bool is_caret = range.empty();
  range.end = off_pair(text, range.end);
  if (is_caret)
    range.begin = range.end;
  else if (mtext::splits_pair(text.parts, range.begin))
    --range.begin;
}

}  // namespace editing
