#include "mtext/merge_metrics.h"

#include <algorithm>

namespace mtext {

void merge_height(string_metrics& line, const string_metrics& part) {
  if (line_height(part) > line_height(line)) {
    line.head = part.head;
    line.above = part.above;
    line.below = part.below;
    line.gap = part.gap;
  }
  line.ink_top = std::max(line.ink_top, part.ink_top);
  line.ink_bottom = std::max(line.ink_bottom, part.ink_bottom);
}

void merge_with_advance(string_metrics& line, const string_metrics& part) {
  merge_height(line, part);
  if (line.advance == 0) {
    line.advance = part.advance;
    line.left_bearing = part.left_bearing;
  } else {
    line.advance += part.advance;
  }
  line.right_bearing = part.right_bearing;
}

void add_blank(string_metrics& line, double advance) {
  line.advance += advance;
  line.right_bearing += advance;
}

}  // namespace mtext
