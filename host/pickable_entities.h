#pragma once

#include <vector>

#include "od/db/OdDbObjectId.h"

class OdDbDatabase;

namespace host {

/// Whether a user can pick an entity: it is seen, and its layer is shown.
bool is_pickable(const OdDbObjectId& id);

/// The last one of the current space that can be picked; null where none can.
OdDbObjectId newest_pickable_entity(const OdDbDatabase& database);

/// All entities of the current space that can be picked, in drawing order.
std::vector<OdDbObjectId> pickable_entities(const OdDbDatabase& database);

/// All entities of the current space that the word "All" means: those on layers that are switched off are
/// among them, those on frozen layers are not.
std::vector<OdDbObjectId> thawed_entities(const OdDbDatabase& database);

}  // namespace host
