#include "micui/extents.h"

#include <algorithm>

namespace micui {

void extents::add(const OdGePoint2d& point) {
  min_x = std::min(min_x, point.x);
  max_x = std::max(max_x, point.x);
  min_y = std::min(min_y, point.y);
  max_y = std::max(max_y, point.y);
}

void extents::merge(const extents& other) {
  if (other.is_empty()) return;
  add({other.min_x, other.min_y});
  add({other.max_x, other.max_y});
}

}  // namespace micui
