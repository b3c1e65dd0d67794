#pragma once

#include "od/ge/OdGePoint2d.h"

class smart_edit;

namespace editing {

/// Whether there is somebody who makes fields.
bool can_make_fields();

/// Has the user make a field and puts it in place of each selection, as an undo step of its own. False when
/// the user has cancelled, or when there is nobody who makes fields.
bool insert_field(smart_edit& session);

/// The same for the field that stands at a point in text coordinates, which the user changes.
bool change_field(smart_edit& session, const OdGePoint2d& at);

/// Evaluates the field at a point anew. False where there is none.
bool update_field(smart_edit& session, const OdGePoint2d& at);

}  // namespace editing
