#pragma once

#include "od/ge/OdGeExtents3d.h"
#include "od/gi/OdGsView.h"

/// How the user moves the camera over the drawing; the direction of sight stays in all of these.

/// Makes everything `factor` times as large on the screen, with the point under `pixel` staying where it is.
/// What would go beyond the numbers that a view can bear is left undone.
void zoomAt(OdGsView& view, const OdGePoint2d& pixel, double factor);

/// Moves the picture so that what was under `from` comes under `to`; both in pixels.
void pan(OdGsView& view, const OdGePoint2d& from, const OdGePoint2d& to);

/// Shows the whole of `box`, in the middle, with a margin of a fiftieth around it. A box without extent in a
/// direction gets some; an empty box changes nothing.
void showBox(OdGsView& view, const OdGeExtents3d& box);
