#include "od/dxf/record.h"

namespace dxf {

// Old writers put all x in front of all y, so y and z need not follow x at once; they belong to it up to the
// next point of the same code.
std::optional<std::size_t> Record::coordinate(std::size_t x_index, std::size_t end, int offset) const {
  const int code = groups_[x_index].code();
  for (std::size_t index = x_index + 1; index < end && index < size(); ++index) {
    if (groups_[index].code() == code) break;
    if (groups_[index].code() == code + offset) return index;
  }
  return std::nullopt;
}

Point Record::get_point(std::size_t x_index, std::size_t end) const {
  Point point{get_double(x_index).value_or(0), 0, 0};
  for (const int axis : {1, 2}) {
    const auto index = coordinate(x_index, end, axis * 10);
    if (index) point[static_cast<std::size_t>(axis)] = get_double(*index).value_or(0);
  }
  return point;
}

Point Record::point_or(int code, Range range, const Point& fallback) const {
  const auto index = find(code, range);
  return index ? get_point(*index, range.end) : fallback;
}

void Record::set_point(std::size_t x_index, std::size_t end, const Point& value) {
  const int code = groups_[x_index].code();
  set_double(x_index, value[0]);
  auto y_index = coordinate(x_index, end, 10);
  if (y_index) {
    set_double(*y_index, value[1]);
  } else {
    y_index = x_index + 1;
    insert_double(*y_index, code + 10, value[1]);
    ++end;
  }
  const auto z_index = coordinate(x_index, end, 20);
  if (z_index) {
    set_double(*z_index, value[2]);
  } else if (value[2] != 0) {
    insert_double(*y_index + 1, code + 20, value[2]);
  }
}

void Record::insert_point(std::size_t index, int code, const Point& value) {
  for (std::size_t axis = 0; axis < 3; ++axis)
    insert_double(index + axis, code + 10 * static_cast<int>(axis), value[axis]);
}

}  // namespace dxf
