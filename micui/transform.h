#pragma once

#include "micui/control.h"
#include "od/ge/OdGeMatrix3d.h"

namespace micui {

/// A point in the coordinates of the control's parent, in those of the control.
OdGePoint2d to_local(const control& control, const OdGePoint2d& point);
/// The way back.
OdGePoint2d to_parent(const control& control, const OdGePoint2d& point);
/// The same as a transformation of space, for drawing.
OdGeMatrix3d to_parent_matrix(const control& control);

/// A point in the coordinates of the parent of the first control of `path`, in those of the last.
OdGePoint2d path_to_local(const control_path& path, OdGePoint2d point);

}  // namespace micui
