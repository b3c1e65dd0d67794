#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "editor/smart_edit.h"

/// A primitive as a test compares it: what it looks like, and the box around its points in text coordinates.
struct drawn_shape {
  std::string look;  ///< "fill 1,2,3" or "line 1,2,3", with the alpha behind it where it is not opaque
  double left = 0, bottom = 0, right = 0, top = 0;

  /// Equal looks, and boxes that agree within a millionth.
  friend bool operator==(const drawn_shape& a, const drawn_shape& b);
  friend std::ostream& operator<<(std::ostream& out, const drawn_shape& shape);
};

/// What a layer of a session draws into the view as it now is, from the bottom to the top.
std::vector<drawn_shape> shapes_of(smart_edit& session, gadget_draw& layer, const OdGsView& view);

/// Has a pixel of the view be `units` long.
void set_pixel(OdGsView& view, double units);
