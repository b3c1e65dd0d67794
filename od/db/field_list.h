#pragma once

#include "od/db/OdDbStub.h"

class OdDbDrawing;

/// Enters FIELD objects in the drawing's list of all fields, which is made with its place in the root
/// dictionary and the classes of both if the drawing has none. Those that are there stay where they are.
void odListFields(OdDbDrawing& drawing, const std::vector<dxf::Handle>& fields);

/// Takes FIELD objects out of that list.
void odUnlistFields(OdDbDrawing& drawing, const std::vector<dxf::Handle>& fields);
