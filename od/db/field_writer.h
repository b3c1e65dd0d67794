#pragma once

#include "od/db/OdDbStub.h"
#include "od/field/OdDbField.h"

class OdDbDrawing;

/// Writes the container of a host's text, and what it holds, into the drawing. The container becomes the
/// FIELD `stub`. A child that was read from one of the FIELDs below it keeps its object, of which nothing
/// changes unless the child shows something else; for others objects are made, and those that nobody needs
/// any more are erased. `checksum` is that of the host's evaluated text.
void odWriteField(OdDbDrawing& drawing, OdDbStub& stub, const OdDbField& container, double checksum);

/// Erases the FIELD `stub` and those that it holds, or brings them back.
void odEraseField(OdDbDrawing& drawing, OdDbStub& stub, bool erasing = true);
