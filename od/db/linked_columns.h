#pragma once

#include <vector>

#include "od/db/OdDbStub.h"
#include "od/dxf/record.h"

class OdDbDrawing;

/// Handles of the texts that hold the columns behind the first of the MTEXT `record`, in their order: before
/// R2018 each column is an entity of its own, and the first one names the others. Empty for a text without.
std::vector<dxf::Handle> odLinkedHandles(const dxf::Record& record);

/// Writes them into the record; none takes the list out.
void odSetLinkedHandles(dxf::Record& record, const std::vector<dxf::Handle>& handles);

/// Makes the texts that each of `firstColumns` names parts of it, so that a block shows one text. A handle
/// that names no text of the same block, or one that is a part already or has columns of its own, is left
/// out: that text stays what it is.
void odLinkColumns(OdDbDrawing& drawing, const std::vector<OdDbStub*>& firstColumns);
