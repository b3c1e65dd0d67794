#pragma once

#include "micui/control.h"

namespace micui {

/// The double arrow of a handle: two triangles, "first" and "second", that point away from each other. It
/// draws nothing of its own.
class rhomb : public control {
 public:
  bool vertical = false;  ///< up and down instead of left and right

  void create_children() override;
  /// Hands both triangles the own colours and a half of the box each.
  void layout() override;
};

}  // namespace micui
