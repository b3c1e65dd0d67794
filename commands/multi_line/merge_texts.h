#pragma once

#include <vector>

#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

/// Puts texts into reading order: higher lines first, within a line from left to right. Texts stand on one
/// line when their y differs by a tenth of the sum of their heights at most. Points are those of the world,
/// so a rotated text counts by its insertion point. The order does not depend on the one before.
void sort_in_reading_order(std::vector<OdDbTextPtr>& texts);

/// Writes texts, in reading order, into one: each piece keeps its format, and behind a piece that does not
/// end before the next one begins comes a line end, else a blank. Height, style, place and rotation are those
/// of the first. `merged` has its database, whose fonts measure it. False, and nothing changed, without
/// texts. Throws `OdError_InvalidIndex` for a text without corners and `OdError_NotThatKindOfClass` for one
/// whose style is none.
bool merge_texts(const std::vector<OdDbTextPtr>& texts, OdDbMText& merged);
