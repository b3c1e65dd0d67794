#pragma once

#include <vector>

#include "od/ge/OdGePoint2d.h"
#include "od/ge/OdGePoint3d.h"

namespace micui {

/// The corners of the rectangle from the origin to (`width`, `height`), anticlockwise from the origin where
/// both are positive.
std::vector<OdGePoint2d> rectangle_points(double width, double height);

/// The points in space, z 0, with the first one again at the end, so that an outline closes.
std::vector<OdGePoint3d> closed_points(const std::vector<OdGePoint2d>& points);

}  // namespace micui
