#pragma once

#include "od/db/OdDbText.h"
#include "od/gi/OdGiTextStyle.h"

/// Where and how a single-line text is drawn, worked out anew from its points, its justification and the
/// fonts at hand. Coordinates are those of the text's plane (object coordinates).
struct OdDbTextPlacement {
  OdGePoint3d position;  ///< left end of the baseline
  double rotation = 0;   ///< radians
  OdGiTextStyle style;   ///< loaded; its size and width factor are the ones that aligned and fitted texts get
  /// The stretch of the baseline that the letters count for, measured from the position: from the pen's start
  /// to its end in a typeface, from ink to ink in a shape font. Both are negative where the text runs
  /// backwards.
  double spanStart = 0;
  double spanEnd = 0;
  OdGePoint3d inkMinimum;  ///< lower left of the ink seen from the position, not yet rotated
  OdGePoint3d inkMaximum;  ///< upper right
};

/// Places `string` as the text of `text`; `database` finds style and fonts.
OdDbTextPlacement odPlaceText(const OdDbText& text, const OdString& string, OdDbDatabase& database);
