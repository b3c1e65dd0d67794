#pragma once

#include "od/ge/OdGeExtents3d.h"

struct OdGiPrimitive;

namespace host {

/// Whether something drawn, seen from above, has a point in common with a box: with its lines, or with its
/// area where it is filled.
bool crosses(const OdGiPrimitive& primitive, const OdGeExtents3d& box);

}  // namespace host
