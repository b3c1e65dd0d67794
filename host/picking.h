#pragma once

#include "od/db/OdDbObjectId.h"
#include "od/ge/OdGePoint3d.h"

class OdDbDatabase;

/// Finds what stands under a point.
class HostPicking {
 public:
  virtual ~HostPicking() = default;
  /// The topmost visible entity of the current space within `aperture` drawing units of the world point; null
  /// if there is none.
  virtual OdDbObjectId pick(const OdGePoint3d& point, double aperture) const = 0;
};
