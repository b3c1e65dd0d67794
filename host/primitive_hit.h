#pragma once

#include "od/ge/OdGePoint3d.h"

struct OdGiPrimitive;

namespace host {

/// Whether a point, seen from above, lies within `aperture` drawing units of the lines of a primitive, or in
/// a polygon.
bool hits_primitive(const OdGiPrimitive& primitive, const OdGePoint3d& point, double aperture);

}  // namespace host
