#pragma once

#include "od/ge/OdGeVector3d.h"

class OdDbDatabase;

/// Axes of the coordinate system that the user works in, each of length 1.
struct ucs_axes {
  OdGeVector3d x = OdGeVector3d::kXAxis;
  OdGeVector3d z = OdGeVector3d::kZAxis;
};

/// Those of the drawing's header; the world's where it tells none, or two that span no plane.
ucs_axes current_ucs(const OdDbDatabase& database);
