#pragma once

#include <vector>

#include "od/dxf/record.h"
#include "od/gi/OdGiGeometry.h"

/// The boundary paths of a hatch in its plane, arcs taken apart into short lines. `range` is the hatch's own
/// part of the record. Its codes mean different things at different places, so it is read in sequence; what
/// does not fit the form ends the reading.
std::vector<OdGiContour> odHatchPaths(const dxf::Record& record, dxf::Range range);
