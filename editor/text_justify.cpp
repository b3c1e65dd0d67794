#include "editor/text_justify.h"

namespace {

constexpr unsigned kCorners = 4;

/// Right end of the baseline.
OdGePoint3d baseline_end(const OdDbText& text) {
  OdArray<OdGePoint3d> corners;
  text.getBoundingPoints(corners);
  if (corners.size() < kCorners) throw OdError_InvalidIndex();
  OdGeVector3d up = corners[0] - corners[2];
  up = up.normal();
  return corners[3] - up * (corners[2] - text.position()).dotProduct(up);
}

}  // namespace

bool alignOrFit(OdDb::TextHorzMode mode) { return mode == OdDb::kTextAlign || mode == OdDb::kTextFit; }

bool isDefaultTextAlignment(const OdDbTextPtr& text) {
  return text->horizontalMode() == OdDb::kTextLeft && text->verticalMode() == OdDb::kTextBase;
}

OdGePoint3d TextPositionOrAlignmentPoint(const OdDbTextPtr& text) {
  return isDefaultTextAlignment(text) ? text->position() : text->alignmentPoint();
}

void ApplyTextJustify(const OdDbTextPtr& text, OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical) {
  const OdGePoint3d position = text->position();
  OdGePoint3d anchor = TextPositionOrAlignmentPoint(text);
  const bool had_two_points = alignOrFit(text->horizontalMode());
  text->setHorizontalMode(horizontal);
  text->setVerticalMode(vertical);
  if (!had_two_points && alignOrFit(horizontal)) anchor = baseline_end(*text);
  text->setAlignmentPoint(anchor);
  text->adjustAlignment();
  const OdGePoint3d moved = text->position();
  if (isDefaultTextAlignment(text))
    text->setPosition(position);
  else
    text->setAlignmentPoint(anchor + (position - moved));
}
