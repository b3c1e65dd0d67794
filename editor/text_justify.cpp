#include "editor/text_justify.h"

namespace {

constexpr unsigned kCorners = 4;

/// Right end of the baseline.
OdGePoint3d baseline_end(const OdDbText& text) {
  OdArray<OdGePoint3d> corners;
  text.getBoundingPoints(corners);
  if (corners.size() < kCorners) throw OdError_InvalidIndex();
  const OdGeVector3d up = (corners[0] - corners[2]).normal();
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
  // What another program with other fonts has left in the file gives way to what is seen.
  text->adjustAlignment();
  const OdGePoint3d position = text->position();
  // The end of the baseline is taken before the modes change: two points that are not set yet stretch
  // nothing.
  const bool becomes_stretched = !alignOrFit(text->horizontalMode()) && alignOrFit(horizontal);
  const OdGePoint3d anchor = becomes_stretched ? baseline_end(*text) : TextPositionOrAlignmentPoint(text);
  text->setHorizontalMode(horizontal);
  text->setVerticalMode(vertical);
  text->setAlignmentPoint(anchor);
  text->adjustAlignment();
  const OdGePoint3d moved = text->position();
  if (isDefaultTextAlignment(text)) return text->setPosition(position);
  text->setAlignmentPoint(anchor + (position - moved));
  text->adjustAlignment();
}
