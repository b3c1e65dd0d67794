#pragma once

#include "od/db/OdDbObjectId.h"
#include "od/ge/OdGePoint3d.h"

class OdDbBlockReference;
class OdDbEntity;

namespace host {

/// Whether a point of the drawing, seen from above, lies within `aperture` drawing units of an entity: of the
/// box of a text, of the lines of anything else, or in an area that is filled.
bool hits_entity(OdDbEntity& entity, const OdGePoint3d& point, double aperture);

/// The text of an insert that stands under a point; null where none does, or where it hides.
OdDbObjectId attribute_at(const OdDbBlockReference& insert, const OdGePoint3d& point, double aperture);
/// What a press that may take such texts means: the text under the point where the picked entity is an insert
/// with one there, else the entity.
OdDbObjectId attribute_or_entity(const OdDbObjectId& picked, const OdGePoint3d& point, double aperture);

}  // namespace host
