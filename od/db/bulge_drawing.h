#pragma once

#include <vector>

#include "od/ge/OdGePoint3d.h"

class OdGiGeometry;

/// A vertex of a line with arcs, in plane coordinates; the bulge belongs to the segment behind it.
struct OdBulgeVertex {
  OdGePoint3d point;
  double bulge = 0;
};

/// Draws the line in the xy plane of the geometry: straight stretches as polylines, each bulge as an arc.
void odDrawBulgeLine(OdGiGeometry& geometry, const std::vector<OdBulgeVertex>& vertices, bool closed);
