#pragma once

#include <vector>

#include "od/dxf/record.h"
#include "od/ge/OdGePoint3d.h"

/// All points whose x stands in a group `code` of `range`, in file order.
std::vector<OdGePoint3d> odPointList(const dxf::Record& record, dxf::Range range, int code);

/// All numbers of a group `code` of `range`, in file order; an unreadable one is 0.
std::vector<double> odNumberList(const dxf::Record& record, dxf::Range range, int code);
