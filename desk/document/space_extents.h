#pragma once

#include "od/ge/OdGeExtents3d.h"

class OdDbDatabase;

/// The box around what is drawn in the active space: entities that are visible, on layers that are shown.
/// Empty when there is nothing.
OdGeExtents3d spaceExtents(OdDbDatabase& database);
