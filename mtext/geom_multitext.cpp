#include "mtext/geom_multitext.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "mtext/marks.h"
#include "mtext/marks_adjust.h"

namespace mtext {
namespace {

/// Makes room for `count` more elements, so that the move of them that follows cannot fail halfway. Grows by
/// doubling: a text that is built by appending stays linear.
template <class PointerVector>
void make_room(PointerVector& elements, std::size_t count) {
  const std::size_t needed = elements.size() + count;
  if (needed > elements.capacity()) elements.reserve(std::max(needed, 2 * elements.capacity()));
}

/// The number of parts that `count` means from `first` on. Throws unless the range lies within `size` parts.
std::size_t checked_count(std::size_t size, std::size_t first, std::size_t count) {
  if (first <= size && count == geom_multitext::to_end) return size - first;
  if (first > size || count > size - first) {
    throw std::invalid_argument("geom_multitext::erase: invalid positions");
  }
  return count;
}

/// Cuts marks down to a range of a text of `size` parts: first what lies behind it, then what lies before.
void keep_marks(marks::mark_list& marks, std::size_t size, std::size_t first, std::size_t count) {
  marks::adjust_erased(marks, first + count, size - first - count);
  marks::adjust_erased(marks, 0, first);
  marks::drop_empty_solids(marks);
}

/// A text of the given range alone, with neither lines nor columns.
geom_multitext copy_of_range(const geom_multitext& text, std::size_t first, std::size_t count) {
  geom_multitext copy;
  copy.format = text.format;
  copy.info = text.info;
  copy.parts.insert(copy.parts.end(), text.parts.begin() + first, text.parts.begin() + first + count);
  copy.marks = text.marks;
  keep_marks(copy.marks, text.parts.size(), first, count);
  return copy;
}

}  // namespace

geom_multitext::geom_multitext(geom_multitext&& other) noexcept { swap(other); }

geom_multitext& geom_multitext::operator=(const geom_multitext& other) {
  geom_multitext copy(other);
  swap(copy);
  return *this;
}

geom_multitext& geom_multitext::operator=(geom_multitext&& other) noexcept {
  geom_multitext moved(std::move(other));
  swap(moved);
  return *this;
}

void geom_multitext::swap(geom_multitext& other) noexcept {
  std::swap(format, other.format);
  parts.swap(other.parts);
  lines.swap(other.lines);
  std::swap(info, other.info);
  columns.swap(other.columns);
  marks.swap(other.marks);
}

void geom_multitext::append(geom_multitext&& other) {
  make_room(parts, other.parts.size());
  make_room(marks, other.marks.size());
  mtext::marks::adjust_inserted(other.marks, 0, parts.size());
  marks.transfer(marks.end(), other.marks);
  parts.transfer(parts.end(), other.parts);
}

void geom_multitext::insert(std::size_t at, geom_multitext&& other) {
  if (at > parts.size()) throw std::invalid_argument("geom_multitext::insert: invalid position");
  make_room(parts, other.parts.size());
  make_room(marks, other.marks.size());
  mtext::marks::adjust_inserted(other.marks, 0, at);
  mtext::marks::adjust_inserted(marks, at, other.parts.size());
  marks.transfer(marks.end(), other.marks);
  parts.transfer(parts.begin() + at, other.parts);
}

void geom_multitext::insert(std::size_t at, const geom_multitext& other) {
  insert(at, geom_multitext(other));
}

void geom_multitext::erase(std::size_t first, std::size_t count, bool drop_empty) {
  const std::size_t erased = checked_count(parts.size(), first, count);
  parts.erase(parts.begin() + first, parts.begin() + first + erased);
  mtext::marks::adjust_erased(marks, first, erased);
  if (drop_empty) mtext::marks::drop_empty_solids(marks);
}

void geom_multitext::erase(const mtext::marks::mark& range, bool drop_empty) {
  if (range.begin > range.end) throw std::invalid_argument("geom_multitext::erase: invalid positions");
  erase(range.begin, range.end - range.begin, drop_empty);
}

void geom_multitext::keep(std::size_t first, std::size_t count) {
  const std::size_t kept = checked_count(parts.size(), first, count);
  const std::size_t size = parts.size();
  parts.erase(parts.begin() + first + kept, parts.end());
  parts.erase(parts.begin(), parts.begin() + first);
  keep_marks(marks, size, first, kept);
}

geom_multitext geom_multitext::slice(std::size_t first, std::size_t count) const {
  geom_multitext copy = copy_of_range(*this, first, checked_count(parts.size(), first, count));
  copy.lines = lines;
  copy.columns = columns;
  return copy;
}

geom_multitext geom_multitext::line(std::size_t index) const {
  if (index >= lines.size()) {
    throw std::invalid_argument("geom_multitext::line: mtext has not enough lines");
  }
  const geom_line& chosen = lines[index];
  const std::size_t count = checked_count(parts.size(), chosen.first, chosen.last - chosen.first);
  geom_multitext copy = copy_of_range(*this, chosen.first, count);
  copy.columns = columns;
  copy.lines.push_back(chosen);
  copy.lines.front().first = 0;
  copy.lines.front().last = count;
  if (count > 0 && is_terminator(copy.parts.back())) copy.erase(count - 1, 1, /*drop_empty=*/false);
  return copy;
}

void geom_multitext::verify_mark(const mtext::marks::mark& mark) const {
  if (mark.begin > parts.size() || mark.end > parts.size()) {
    throw std::invalid_argument("geom_multitext::verify_mark: mark doesn't belong to multitext");
  }
}

void geom_multitext::verify_elem(std::size_t at) const {
  if (at > parts.size()) {
    throw std::invalid_argument("geom_multitext::verify_elem: at doesn't belong to multitext");
  }
}

}  // namespace mtext
