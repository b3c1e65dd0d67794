#pragma once

#include <vector>

#include "od/base/OdString.h"
#include "od/ge/OdGePoint2d.h"

class OdDbMText;
class OdGiWorldDraw;

/// Size of a laid-out multi-line text, in drawing units.
struct OdDbMTextMeasure {
  double width = 0;     ///< of the widest line or of all columns
  double height = 0;    ///< from the first line's top to the last baseline of the highest column
  OdGePoint2d minimum;  ///< lower left of the box in text coordinates (origin at the location)
  OdGePoint2d maximum;  ///< upper right
};

/// Lays out multi-line texts for the database, which knows no layout of its own.
class OdDbMTextLayout {
 public:
  virtual ~OdDbMTextLayout() = default;

  virtual OdDbMTextMeasure measure(const OdDbMText& text) = 0;
  /// Whether codes may come out written in another way than the text has them.
  enum Spelling { kKeepsSpelling, kAnySpelling };
  /// What stands in each column, as a text that can stand alone: together they are the text. Empty when that
  /// cannot be told, as with fields, or not with that spelling.
  virtual std::vector<OdString> columnContents(const OdDbMText& text, Spelling spelling) = 0;
  /// Draws the characters in text coordinates: the transform to the world is on the geometry's stack already,
  /// the entity's colour is set, and background and frame are drawn.
  virtual void draw(const OdDbMText& text, OdGiWorldDraw& draw) = 0;
};
