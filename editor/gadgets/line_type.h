#pragma once

#include "od/gi/OdGiSubEntityTraits.h"

/// Line types by their number in a view.
enum vcgi_line_type : int { kVcgiDashed = 1, kVcgiDefault = 31 };

/// Sets a line type of the view: dashed, or for every other number the one that the view draws with by
/// itself. `scale` is that of the dashes; a view that measures dashes in pixels leaves it alone.
void vcgiSetLineType(OdGiSubEntityTraits& traits, int line_type, int scale);
