#pragma once

#include "commands/justify/justify_rows.h"
#include "od/db/OdDbText.h"

/// The justification at a place of the keyword list of TJust, 0 to 12. "Middle" of a single-line text is the
/// same as "Center"; of a multi-line text it is the middle of the block. Throws `std::out_of_range`.
const justify_row& justification_at(int index);

/// Justifies a text anew without moving it on the sheet.
void justify_in_place(OdDbText& text, const justify_row& to);

/// The same. What stays is the corner of a text without rotation: the direction of the entity does not count.
void justify_in_place(OdDbMText& text, const justify_row& to);
