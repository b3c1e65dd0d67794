#pragma once

#include "editor/dead_zone.h"
#include "editor/shown_text.h"
#include "editor/view_reading.h"

namespace editing {

/// Zones of both axes.
struct dead_zones {
  dead_zone x, y;
};

/// Turns and zooms `view` so that it looks straight on the text, its lines of a height that is good to edit,
/// with the caret in sight. `zones` are in text coordinates and follow the caret. Needs a finite
/// magnification above 0.
void move_view(OdGsView& view, const shown_text& text, const view_reading& reading, dead_zones& zones);

}  // namespace editing
