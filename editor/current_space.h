#pragma once

#include "od/db/OdDbBlockTableRecord.h"

class OdDbDatabase;

namespace editing {

/// The block that a new entity goes into: the active space, but the model's where one works in it through a
/// viewport of the paper.
OdDbObjectId current_space(const OdDbDatabase& database);

/// That block, open. Throws `OdError_NotThatKindOfClass` when the drawing has no such block.
OdDbBlockTableRecordPtr open_current_space(const OdDbDatabase& database,
                                           OdDb::OpenMode mode = OdDb::kForWrite);

}  // namespace editing
