#include <algorithm>

#include "mtext/marks_adjust.h"

namespace mtext::marks {
namespace {

/// Where a position behind the start of an erased stretch comes to stand.
std::size_t after_erasure(std::size_t position, std::size_t first, std::size_t count) {
  return std::max(position, first + count) - count;
}

}  // namespace

void adjust_inserted(mark_list& marks, std::size_t at, std::size_t count) {
  for (mark& each : marks) {
    if (each.begin >= at) {
      each.begin += count;
      each.end += count;
    } else if (each.end > at) {
      each.end += count;
    }
  }
}

void adjust_erased(mark_list& marks, std::size_t first, std::size_t count) {
  for (mark& each : marks) {
    if (each.begin >= first) {
      each.begin = after_erasure(each.begin, first, count);
      each.end = after_erasure(each.end, first, count);
    } else if (each.end > first) {
      each.end = after_erasure(each.end, first, count);
    }
  }
}

}  // namespace mtext::marks
