#pragma once

#include <vector>

#include "od/ge/OdGePoint2d.h"

struct FT_Outline_;

/// The contours of a FreeType outline as closed polylines, in the outline's units. What has no area, less
/// than three points, is left out.
std::vector<std::vector<OdGePoint2d>> odOutlineContours(FT_Outline_& outline, double tolerance);
