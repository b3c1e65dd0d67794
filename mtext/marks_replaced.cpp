#include <algorithm>

#include "mtext/marks_adjust.h"

namespace mtext::marks {
namespace {

/// Where marks come to stand when ranges are replaced one after the other. Positions are those before the
/// first of them; only the results are those behind the last.
class replaced_positions {
 public:
  explicit replaced_positions(const std::vector<replaced_range>& ranges)
      : m_ranges(ranges), m_moved(ranges.size() + 1), m_touched_from(ranges.size()) {
    for (std::size_t i = 0; i < ranges.size(); ++i) {
      m_moved[i + 1] = m_moved[i] + ranges[i].new_count - ranges[i].count;
    }
    for (std::size_t i = ranges.size(); i-- > 0;) {
      const bool goes_on = i + 1 < ranges.size() && ranges[i + 1].first == end_of(i);
      m_touched_from[i] = goes_on ? m_touched_from[i + 1] : i + 1;
    }
  }

  void adjust(mark& each) const {
    // The ranges that begin at the mark's begin or before: they move the whole mark.
    std::size_t before =
        count_of_first([&](const replaced_range& range) { return range.first <= each.begin; });
    if (before > 0 && end_of(before - 1) > each.begin) {
      before = m_touched_from[before - 1];
      each.begin = end_of(before - 1);
    }
    if (before > 0) each.end = std::max(each.end, end_of(before - 1));
    each.end = moved_end(each.end, before);
    each.begin += m_moved[before];
  }

 private:
  std::size_t end_of(std::size_t range) const { return m_ranges[range].first + m_ranges[range].count; }

  template <class Condition>
  std::size_t count_of_first(Condition condition) const {
    return std::partition_point(m_ranges.begin(), m_ranges.end(), condition) - m_ranges.begin();
  }

  /// The new place of an end, of a mark that the first `before` ranges moved. The others stretch or shrink
  /// it, and the one that it ends in, or ends with, cuts it off.
  std::size_t moved_end(std::size_t end, std::size_t before) const {
    const std::size_t inside = count_of_first([&](const replaced_range& range) { return range.first < end; });
    if (inside <= before) return end + m_moved[before];
    if (end > end_of(inside - 1)) return end + m_moved[inside];
    return m_ranges[inside - 1].first + m_moved[inside - 1];
  }

  const std::vector<replaced_range>& m_ranges;
  /// How far the ranges before each have moved what follows them; wraps around for a move down.
  std::vector<std::size_t> m_moved;
  /// For a position in each range, the number of ranges that move it: a position is moved to the range's end,
  /// and with that into a range that begins there.
  std::vector<std::size_t> m_touched_from;
};

}  // namespace

void adjust_replaced(mark_list& marks, const std::vector<replaced_range>& ranges) {
  const replaced_positions positions(ranges);
  for (mark& each : marks) positions.adjust(each);
}

}  // namespace mtext::marks
