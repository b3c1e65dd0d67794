#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace mtext::marks {

/// What the items of one list level have been counted to. Every kind of label, and every alphabet in each
/// case, has a counter of its own, so lists of different kinds do not disturb each other.
struct number_counter {
  explicit number_counter(std::size_t alphabets) : value(2 + 2 * alphabets) {}

  /// The place in `value` for labels of that kind; `alphabet` counts for the kinds 1 and 2 only. Throws
  /// `ensure_error` for an alphabet that there is no counter for.
  std::size_t index_of(std::uint32_t kind, std::uint64_t alphabet) const;
  /// Counts one more item. Throws as `index_of` does.
  void increment(std::uint32_t kind, std::uint64_t alphabet);
  /// The number counted to, where nothing counted becomes 1. Throws as `index_of` does.
  std::uint64_t current(std::uint32_t kind, std::uint64_t alphabet);

  std::vector<std::uint64_t> value;  ///< 0 while nothing was counted
};

}  // namespace mtext::marks
