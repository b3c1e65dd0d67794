#pragma once

#include <optional>

#include "od/db/OdDbDatabase.h"

/// A property of the drawing as a whole: `Title`, `Subject`, `Author`, `Keywords`, `Comments`, `LastSavedBy`,
/// `RevisionNumber`, and `CustomDP.name` for those that users add. Names compare without case; nothing for
/// another name.
std::optional<OdString> odDrawingProperty(OdDbDatabase& database, std::u16string_view name);
