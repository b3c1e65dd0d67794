#pragma once

#include <vector>

namespace controls {

/// The sizes that toolbars of this run have offered, for the next one to begin with. It is kept as long as
/// the process lives and nowhere else.
std::vector<float>& size_list();

}  // namespace controls
