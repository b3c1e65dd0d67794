#pragma once

#include <cstdint>

namespace mtext {

/// The second base of the gadgets that can be dragged.
class resizer {
 public:
  enum : std::uint32_t { kNorthSouth = 0, kWestEast = 1, kNorthwestSoutheast = 2, kNortheastSouthwest = 3 };

  resizer() = default;
  resizer(const resizer&) = delete;
  resizer& operator=(const resizer&) = delete;
  virtual ~resizer() = default;

  /// Which resize cursor the mouse shows over the gadget: one of the four.
  std::uint32_t cursor = kNorthSouth;
};

}  // namespace mtext
