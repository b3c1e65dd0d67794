#pragma once

#include <cstdint>

namespace toolbar {

/// One of the five buttons of which one at most is down.
struct alignment_button {
  int id;
  std::uint32_t alignment;  ///< as in `format::paragraph`
};

inline constexpr alignment_button kAlignmentButtons[] = {
    {1005, 1}, {1006, 2}, {1007, 3}, {1010, 4}, {1011, 5}};

}  // namespace toolbar
