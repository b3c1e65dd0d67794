#pragma once

#include <optional>

#include "editor/gadgets/editor.h"

/// The column settings that a handle dragged to a point asks for, starting from those of the root's last
/// layout. Points are in the coordinates of the root; no length comes out negative, and no width below the
/// text height.
namespace mtext {

/// Distance of a point from the attachment point along the lines, for a box that grows from there: doubled
/// where it grows to both sides, 0 on the far side.
double width_from(const editor& root, const OdGePoint2d& at);
/// The same across the lines.
double height_from(const editor& root, const OdGePoint2d& at);

/// "width sizer": the overall width. One column takes it; several keep theirs and the gutters take up the
/// change, down to 0.
column_settings with_overall_width(const editor& root, const OdGePoint2d& at);

/// "dot": the width of each column; the gutter stays.
column_settings with_column_width(const editor& root, const OdGePoint2d& at);

/// "height sizer" and "height edge" of column `index`: its own height where heights are manual, missing ones
/// before it becoming 0; else the height of all.
column_settings with_column_height(const editor& root, std::size_t index, const OdGePoint2d& at);

/// "sizer": width and height at once. `corner` is the grip's. Nothing where the grip stands less than 0.3
/// column widths from the attachment point.
std::optional<column_settings> with_corner(const editor& root, std::size_t index, std::uint32_t corner,
                                           const OdGePoint2d& at);

}  // namespace mtext
