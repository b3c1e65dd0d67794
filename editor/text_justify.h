#pragma once

#include "od/db/OdDbText.h"

/// The two modes with two points: a text that fills the room between them.
bool alignOrFit(OdDb::TextHorzMode mode);

/// True for left and baseline, which has no alignment point.
bool isDefaultTextAlignment(const OdDbTextPtr& text);

/// The point that the text hangs on.
OdGePoint3d TextPositionOrAlignmentPoint(const OdDbTextPtr& text);

/// Justifies otherwise and leaves the letters where they are. The text has to be open for write and to have a
/// database. Throws `OdError_InvalidIndex` when a text that becomes aligned has no box.
void ApplyTextJustify(const OdDbTextPtr& text, OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical);
