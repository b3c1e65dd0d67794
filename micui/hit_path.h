#pragma once

#include "micui/control.h"

namespace micui {

/// The path from `root` down to the deepest control at a point, which is in the coordinates of the parent of
/// `root`. Children are asked before their parent and may lie outside it. Empty when nothing is hit.
control_path hit_path(control& root, const OdGePoint2d& point);

/// The path from `root` to the first control of that name below it, or to itself if it has the name alone.
/// Empty when there is none.
control_path path_to(control& root, std::u16string_view name);

/// The first control of that name in a path; null if there is none.
control_ptr path_find(const control_path& path, std::u16string_view name);

/// The path up to and including `last`; the whole path when it does not hold `last`.
control_path path_prefix(const control_path& path, const control_ptr& last);

}  // namespace micui
