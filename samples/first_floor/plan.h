#pragma once

#include "samples/first_floor/sheet.h"

namespace samples {

/// Lower left outer corner of the building on the sheet.
inline constexpr Position kOrigin{2000, 5200};

/// `position`, measured from the building's corner, on the sheet.
inline Position in_plan(double x, double y) { return {kOrigin.x + x, kOrigin.y + y}; }

/// Layers, styles and blocks that the parts of the drawing use.
void set_up(Sheet& sheet);
void draw_walls(Sheet& sheet);
void draw_openings(Sheet& sheet);
void draw_furniture(Sheet& sheet);
void label_rooms(Sheet& sheet);
void draw_dimensions(Sheet& sheet);
void write_notes(Sheet& sheet);
void draw_title_block(Sheet& sheet);

}  // namespace samples
