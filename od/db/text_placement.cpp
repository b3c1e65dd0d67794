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

/// Ink and pen of `string` as `style` draws it.
struct Measured {
  OdGePoint3d inkMinimum, inkMaximum, end;

  Measured(const OdGiTextStyle& style, const OdString& string) {
    OdGiDefaultContext().textExtentsBox(style, string.c_str(), string.getLength(), 0, inkMinimum, inkMaximum,
                                        end);
  }
};

/// The style without slant and mirrors, which move ink and change no length.
OdGiTextStyle upright(OdGiTextStyle style) {
  style.setObliquingAngle(0);
  style.setBackward(false);
  style.setUpsideDown(false);
  return style;
}

void measure(OdDbTextPlacement& placement, const OdString& string) {
  const OdGiTextStyle& style = placement.style;
  const Measured drawn(style, string);
  placement.inkMinimum = drawn.inkMinimum;
  placement.inkMaximum = drawn.inkMaximum;
  placement.spanStart = 0;
  placement.spanEnd = drawn.end.x;
  if (!style.font()->isShapeFont()) return;
  // The advance of a shape font ends with the gap to the next letter: what counts is where the pen has drawn.
  const Measured straight(upright(style), string);
  const double side = style.isBackward() ? -1 : 1;
  placement.spanStart = side * straight.inkMinimum.x;
  placement.spanEnd = side * straight.inkMaximum.x;
}

/// The deepest line of the font, below the baseline. Typefaces and shape fonts give it different signs.
double descent(const OdGiTextStyle& style) {
  const OdFont& font = *style.font();
  return std::abs(font.descender()) * style.textSize() / font.nominalHeight();
}

/// From the start of the text along its baseline to the point that the justification means.
double anchorAlong(OdDb::TextHorzMode mode, const OdDbTextPlacement& placement) {
  if (mode == OdDb::kTextCenter) return (placement.spanStart + placement.spanEnd) / 2;
  return mode == OdDb::kTextRight ? placement.spanEnd : 0;
}

/// From the baseline up to that point in a text that stands upright.
double anchorRise(OdDb::TextVertMode mode, const OdGiTextStyle& style) {
  switch (mode) {
    case OdDb::kTextBottom:
      return -descent(style);
    case OdDb::kTextVertMid:
      return style.textSize() / 2;
    case OdDb::kTextTop:
      return style.textSize();
    default:
      return 0;
  }
}

/// From the start of the text to the point that the justification means, not yet rotated.
OdGeVector3d anchorOffset(const OdDbText& text, const OdDbTextPlacement& placement) {
  const OdDb::TextHorzMode mode = text.horizontalMode();
  if (mode == OdDb::kTextMid)
    return (placement.inkMinimum.asVector() + placement.inkMaximum.asVector()) * 0.5;
  const OdGiTextStyle& style = placement.style;
  const double rise = anchorRise(text.verticalMode(), style);
  // A point above the baseline leans over with slanted letters; the one below it stays.
  const double lean = rise > 0 ? rise * std::tan(style.obliquingAngle()) : 0;
  return {anchorAlong(mode, placement) + (style.isBackward() ? -lean : lean),
          style.isUpsideDown() ? -rise : rise, 0};
}

/// Stretches the text from `from` to `to`: by its height when aligned, by its width factor when fitted. A
/// backward text begins at `from` too, so that it runs against its own direction.
void stretch(const OdDbText& text, OdDbDatabase& database, const OdGePoint3d& from, const OdGePoint3d& to,
             const OdString& string, OdDbTextPlacement& placement) {
  const OdGeVector3d way = placement.style.isBackward() ? from - to : to - from;
  placement.position = from;
  const double length = std::hypot(way.x, way.y);
  if (length == 0 || placement.spanEnd == 0) return;
  placement.rotation = std::atan2(way.y, way.x);
  const double factor = length / std::abs(placement.spanEnd);
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
