#include "od/db/text_placement.h"

#include <cmath>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/fonts/OdFont.h"
#include "od/gi/OdGiContext.h"

namespace {

OdGiTextStyle styleOf(const OdDbText& text, OdDbDatabase& database) {
  OdGiTextStyle style;
  const auto record = odOpen<OdDbTextStyleTableRecord>(database.textStyleOrStandard(text.textStyleName()));
  if (record) record->getTextStyle(style);
  style.setTextSize(text.height());
  style.setXScale(text.widthFactor());
  style.setObliquingAngle(text.oblique());
  style.setBackward(text.isMirroredInX());
  style.setUpsideDown(text.isMirroredInY());
  style.loadStyleRec(database);
  return style;
}

void measure(OdDbTextPlacement& placement, const OdString& string) {
  OdGePoint3d end;
  OdGiDefaultContext().textExtentsBox(placement.style, string.c_str(), string.getLength(), 0,
                                      placement.inkMinimum, placement.inkMaximum, end);
  placement.advance = end.x;
}

/// The deepest line of the font, below the baseline. Typefaces and shape fonts give it different signs.
double descent(const OdGiTextStyle& style) {
  const OdFont& font = *style.font();
  return std::abs(font.descender()) * style.textSize() / font.nominalHeight();
}

/// From the left end of the baseline to the point that the justification means.
OdGeVector3d anchorOffset(const OdDbText& text, const OdDbTextPlacement& placement) {
  OdGeVector3d offset;
  switch (text.horizontalMode()) {
    case OdDb::kTextCenter:
      offset.x = placement.advance / 2;
      break;
    case OdDb::kTextRight:
      offset.x = placement.advance;
      break;
    case OdDb::kTextMid:
      return (placement.inkMinimum.asVector() + placement.inkMaximum.asVector()) * 0.5;
    default:
      break;
  }
  switch (text.verticalMode()) {
    case OdDb::kTextBottom:
      offset.y = -descent(placement.style);
      break;
    case OdDb::kTextVertMid:
      offset.y = text.height() / 2;
      break;
    case OdDb::kTextTop:
      offset.y = text.height();
      break;
    default:
      break;
  }
  return offset;
}

/// Stretches the text from `from` to `to`: by its height when aligned, by its width factor when fitted.
void stretch(const OdDbText& text, OdDbDatabase& database, const OdGePoint3d& from, const OdGePoint3d& to,
             const OdString& string, OdDbTextPlacement& placement) {
  const OdGeVector3d way = to - from;
  placement.position = from;
  const double length = std::hypot(way.x, way.y);
  if (length == 0 || placement.advance == 0) return;
  placement.rotation = std::atan2(way.y, way.x);
  const double factor = length / std::abs(placement.advance);
  if (text.horizontalMode() == OdDb::kTextAlign)
    placement.style.setTextSize(placement.style.textSize() * factor);
  else
    placement.style.setXScale(placement.style.xScale() * factor);
  placement.style.loadStyleRec(database);
  measure(placement, string);
}

}  // namespace

OdDbTextPlacement odPlaceText(const OdDbText& text, const OdString& string, OdDbDatabase& database) {
  const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(text.normal());
  OdDbTextPlacement placement;
  placement.position = toPlane * text.position();
  placement.rotation = text.rotation();
  placement.style = styleOf(text, database);
  measure(placement, string);
  if (text.isDefaultAlignment()) return placement;
  const OdGePoint3d anchor = toPlane * text.alignmentPoint();
  const OdDb::TextHorzMode mode = text.horizontalMode();
  if (mode == OdDb::kTextAlign || mode == OdDb::kTextFit) {
    stretch(text, database, placement.position, anchor, string, placement);
    return placement;
  }
  const OdGeVector3d offset = anchorOffset(text, placement);
  placement.position = anchor - offset.rotatedBy(placement.rotation, OdGeVector3d::kZAxis);
  return placement;
}
