#pragma once

#include <cstdint>

#include "micui/control.h"

namespace mtext {

/// The glyph of a tab stop: a foot, a stem, and for a decimal stop a point. It is each stop in a tab area,
/// and the switch beside the ruler.
class tabulation : public micui::control {
 public:
  std::uint32_t kind = 0;  ///< that of the stop: 0 left, 1 centre, 2 right, 3 decimal

  void create_children() override;
  /// The point is there for every kind, and placed for a decimal stop alone; otherwise it keeps its place,
  /// which is the origin and no size in a new glyph.
  void layout() override;
};

}  // namespace mtext
