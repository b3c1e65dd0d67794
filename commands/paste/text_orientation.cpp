#include "commands/paste/text_orientation.h"

#include <cmath>

#include "commands/base/current_ucs.h"
#include "od/ge/OdGePlane.h"

text_orientation getTextOrientation(const OdDbDatabase& database) {
  const ucs_axes axes = current_ucs(database);
  const OdGePlane plane({}, axes.z);
  return {axes.z, std::atan2(axes.x.dotProduct(plane.vAxis()), axes.x.dotProduct(plane.uAxis()))};
}
