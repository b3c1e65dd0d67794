#pragma once

#include <string>
#include <vector>

#include "od/ge/OdGePoint3d.h"

/// One measure shown beside the cursor in a drag.
struct HostJigDimension {
  OdGePoint3d from;  ///< world coordinates
  OdGePoint3d to;
  double value = 0;  ///< drawing units
};

/// The dimensions which a drag shows.
class HostEdJigDimData {
 public:
  virtual ~HostEdJigDimData() = default;
  virtual std::vector<HostJigDimension> dimensions() const { return {}; }
};
