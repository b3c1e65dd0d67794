#pragma once

#include "od/db/OdDbObjectId.h"

class OdDbDatabase;

namespace editing {

/// The block that a new entity goes into: the active space, but the model's where one works in it through a
/// viewport of the paper.
OdDbObjectId current_space(const OdDbDatabase& database);

}  // namespace editing
