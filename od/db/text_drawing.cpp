#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbText.h"
#include "od/db/text_placement.h"
#include "od/db/text_subclass.h"

namespace {

/// What is drawn, or for an attribute that hides itself what it would show.
OdString placedText(const OdString& shown, const OdString& own) { return shown.isEmpty() ? own : shown; }

}  // namespace

void OdDbText::drawGeometry(OdGiWorldDraw& draw) const {
  if (!database() || shownText().isEmpty()) return;
  const OdDbTextPlacement placement = odPlaceText(*this, shownText(), *database());
  const OdGeVector3d direction = OdGeVector3d::kXAxis.rotatedBy(placement.rotation, OdGeVector3d::kZAxis);
  OdGiGeometry& geometry = draw.geometry();
  const OdGiFillType fill = geometry.traits().fillType();
  geometry.traits().setFillType(kOdGiFillAlways);
  geometry.pushModelTransform(OdGeMatrix3d::planeToWorld(normal()));
  constexpr bool kRaw = false;
  geometry.text(placement.position, OdGeVector3d::kZAxis, direction, shownText().str(), kRaw,
                placement.style);
  geometry.popModelTransform();
  geometry.traits().setFillType(fill);
}

void OdDbText::adjustAlignment(OdDbDatabase* other) {
  OdDbDatabase* source = other ? other : database();
  if (!source || isDefaultAlignment()) return;
  const OdDbTextPlacement placement = odPlaceText(*this, placedText(shownText(), textString()), *source);
  // A record without an alignment point hangs on its position, which moves now.
  if (!groups(odTextSubclass()).has(11)) setAlignmentPoint(alignmentPoint());
  setPosition(OdGeMatrix3d::planeToWorld(normal()) * placement.position);
  const OdDb::TextHorzMode mode = horizontalMode();
  if (mode != OdDb::kTextAlign && mode != OdDb::kTextFit) return;
  setRotation(placement.rotation);
  if (mode == OdDb::kTextAlign)
    setHeight(placement.style.textSize());
  else
    setWidthFactor(placement.style.xScale());
}

void OdDbText::getBoundingPoints(OdArray<OdGePoint3d>& points) const {
  points.clear();
  if (!database()) throw OdError(eNoDatabase);
  const OdDbTextPlacement placement = odPlaceText(*this, placedText(shownText(), textString()), *database());
  const bool hasInk = placement.inkMaximum.y > placement.inkMinimum.y;
  const double low = hasInk ? placement.inkMinimum.y : 0;
  const double high = hasInk ? placement.inkMaximum.y : height();
  const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(normal()) *
                               OdGeMatrix3d::translation(placement.position.asVector()) *
                               OdGeMatrix3d::rotation(placement.rotation, OdGeVector3d::kZAxis);
  for (const double y : {high, low}) {
    for (const double x : {0.0, placement.spanEnd}) points.append(toWorld * OdGePoint3d{x, y, 0});
  }
}

OdResult OdDbText::getGeomExtents(OdGeExtents3d& extents) const {
  OdArray<OdGePoint3d> points;
  getBoundingPoints(points);
  extents = OdGeExtents3d();
  for (const OdGePoint3d& point : points) extents.addPoint(point);
  return eOk;
}
