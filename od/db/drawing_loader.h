#pragma once

class OdDbDrawing;

/// Walks the records of the drawing's file once and makes a stub for each object, the tables, the blocks and
/// their lists of entities. Defects of the file never fail: what cannot be placed stays in the file alone.
void odLoadDrawing(OdDbDrawing& drawing);
