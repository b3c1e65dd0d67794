#pragma once

#include <string>

namespace samples {

/// The bytes of the drawing `first-floor.dxf`: the plan of a small office on a sheet of A3 at 1:50, in
/// millimetres, with texts of many kinds.
std::string first_floor();

}  // namespace samples
