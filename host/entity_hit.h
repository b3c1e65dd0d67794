#pragma once

#include "od/ge/OdGePoint3d.h"

class OdDbEntity;

namespace host {

/// Whether a point of the drawing, seen from above, lies within `aperture` drawing units of an entity: of the
/// box of a text, of the lines of anything else, or in an area that is filled.
bool hits_entity(OdDbEntity& entity, const OdGePoint3d& point, double aperture);

}  // namespace host
