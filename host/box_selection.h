#pragma once

#include <vector>

#include "od/db/OdDbObjectId.h"
#include "od/ge/OdGePoint3d.h"

class OdDbDatabase;

/// A rectangle of the drawing, seen from above, by two opposite corners.
struct HostSelectionRectangle {
  OdGePoint3d first;
  OdGePoint3d opposite;

  /// Drawn from right to left it takes what it touches, from left to right what lies wholly in it.
  bool takesCrossing() const { return opposite.x < first.x; }
};

namespace host {

/// The entities of the current space that a rectangle takes, of those that can be picked. In drawing order.
std::vector<OdDbObjectId> entities_in(const OdDbDatabase& database, const HostSelectionRectangle& rectangle);

}  // namespace host
