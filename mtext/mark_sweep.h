#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <queue>
#include <utility>
#include <vector>

#include "mtext/mark.h"

namespace mtext::marks {

/// Answers for many positions, asked in ascending order, which mark of class `Mark` covers each: of several,
/// the first in the order of the list. All answers together cost n log n, where a search for each would cost
/// n times m. The list must not change meanwhile.
template <class Mark>
class mark_sweep {
 public:
  explicit mark_sweep(const mark_list& marks) {
    for (const mark& each : marks) {
      const Mark* found = dynamic_cast<const Mark*>(&each);
      if (found && found->begin < found->end) m_waiting.push_back({m_waiting.size(), found});
    }
    std::stable_sort(m_waiting.begin(), m_waiting.end(),
                     [](const entry& a, const entry& b) { return a.second->begin < b.second->begin; });
  }

  /// The first mark with `begin` <= `position` < `end`; null if there is none. `position` must not be less
  /// than in the call before.
  const Mark* at(std::size_t position) {
    for (; m_next < m_waiting.size() && m_waiting[m_next].second->begin <= position; ++m_next) {
      m_open.push(m_waiting[m_next]);
    }
    while (!m_open.empty() && m_open.top().second->end <= position) m_open.pop();
    return m_open.empty() ? nullptr : m_open.top().second;
  }

 private:
  /// Place in the list, and the mark.
  using entry = std::pair<std::size_t, const Mark*>;

  struct later_in_list {
    bool operator()(const entry& a, const entry& b) const { return a.first > b.first; }
  };

  std::vector<entry> m_waiting;  ///< all marks, by `begin`
  std::size_t m_next = 0;        ///< the first of `m_waiting` that begins behind the position
  std::priority_queue<entry, std::vector<entry>, later_in_list> m_open;  ///< begun; ended ones go when on top
};

}  // namespace mtext::marks
