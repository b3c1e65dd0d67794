#include "editor/solid_stops.h"

#include <optional>

namespace editing {

namespace {

using mtext::marks::solid;

/// The legal stops of a solid; a solid that excludes its begin and starts at 0 has no left one.
struct stops {
  std::optional<std::size_t> left;
  std::size_t right;
};

stops stops_of(const solid& range) {
  if (range.include_begin) return {range.begin, range.end};
  if (range.begin == 0) return {std::nullopt, range.end};
  return {range.begin - 1, range.end};
}

/// The stops of the first solid in whose inside `position` lies.
std::optional<stops> stops_around(const mtext::geom_multitext& text, std::size_t position) {
  for (const auto& mark : text.marks) {
    const auto* range = dynamic_cast<const solid*>(&mark);
    if (!range || position < range->begin || position >= range->end) continue;
    const stops found = stops_of(*range);
    if (!found.left || *found.left < position) return found;
  }
  return std::nullopt;
}

}  // namespace

std::size_t stop_before(const mtext::geom_multitext& text, std::size_t position) {
  const auto found = stops_around(text, position);
  return found ? found->left.value_or(found->right) : position;
}

std::size_t stop_behind(const mtext::geom_multitext& text, std::size_t position) {
  const auto found = stops_around(text, position);
  return found ? found->right : position;
}

std::size_t nearest_stop(const mtext::geom_multitext& text, std::size_t position) {
  const auto found = stops_around(text, position);
  if (!found) return position;
  if (!found->left) return found->right;
  return position - *found->left < found->right - position ? *found->left : found->right;
}

const solid* solid_ending_at(const mtext::geom_multitext& text, std::size_t position) {
  for (const auto& mark : text.marks)
    if (mark.end == position && mark.begin < position)
      if (const auto* range = dynamic_cast<const solid*>(&mark)) return range;
  return nullptr;
}

const solid* solid_beginning_at(const mtext::geom_multitext& text, std::size_t position) {
  for (const auto& mark : text.marks)
    if (mark.begin == position && mark.end > position)
      if (const auto* range = dynamic_cast<const solid*>(&mark)) return range;
  return nullptr;
}

}  // namespace editing
