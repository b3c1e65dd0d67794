#pragma once

#include <cstddef>
#include <vector>

#include "mtext/format_string.h"

namespace mtext::reading {

/// The character formats of the groups that are open, the innermost on top.
/// A group that changes nothing costs a count and no copy of the format, so that a million braces are cheap.
class format_stack {
 public:
  explicit format_stack(const format::string& base) { m_levels.push_back({base, 0}); }

  /// The format in force.
  const format::string& top() const { return m_levels.back().format; }

  /// The format in force, to be changed until the group closes.
  format::string& change_top() {
    if (m_levels.back().unchanged_groups > 0) {
      --m_levels.back().unchanged_groups;
      m_levels.push_back({m_levels.back().format, 0});
    }
    return m_levels.back().format;
  }

  void open_group() { ++m_levels.back().unchanged_groups; }

  /// Closes the innermost group; false when none is open.
  bool close_group() {
    if (m_levels.back().unchanged_groups > 0) {
      --m_levels.back().unchanged_groups;
    } else if (m_levels.size() > 1) {
      m_levels.pop_back();
    } else {
      return false;
    }
    return true;
  }

 private:
  struct level {
    format::string format;
    /// Groups that were opened on this level and have changed nothing so far.
    std::size_t unchanged_groups;
  };

  std::vector<level> m_levels;
};

}  // namespace mtext::reading
