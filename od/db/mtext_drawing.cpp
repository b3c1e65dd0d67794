#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/mtext_subclass.h"

// Size and picture of a multi-line text, both by the database's layout.

namespace {

/// Columns and rows of the attachment: 0 left or top, 1 middle, 2 right or bottom.
int columnOf(OdDb::AttachmentPoint attachment) { return (attachment - 1) % 3; }
int rowOf(OdDb::AttachmentPoint attachment) { return (attachment - 1) / 3; }

/// The box of that size whose attachment point is the origin.
OdDbMTextMeasure boxOf(double width, double height, OdDb::AttachmentPoint attachment) {
  const double left = -width * columnOf(attachment) / 2, top = height * rowOf(attachment) / 2;
  return {width, height, {left, top - height}, {left + width, top}};
}

}  // namespace

OdDbMTextMeasure OdDbMText::measured() const {
  assertReadEnabled();
  if (database() && database()->textLayout()) return database()->textLayout()->measure(*this);
  const OdDbEmbeddedMText embedded(record());
  const OdDbGroups text = groups(odMTextSubclass());
  const double wide = embedded.real(42, text.real(42, 0)), high = embedded.real(43, text.real(43, 0));
  return boxOf(wide > 0 ? wide : width(), high > 0 ? high : height(), attachment());
}

double OdDbMText::actualWidth() const { return measured().width; }

double OdDbMText::actualHeight() const { return measured().height; }

void OdDbMText::setAttachmentMovingLocation(OdDb::AttachmentPoint attachment) {
  if (this->attachment() == attachment) return;
  const OdDbMTextMeasure size = measured();
  const double box = size.maximum.x - size.minimum.x;
  const OdGePoint3d moved{size.minimum.x + box * columnOf(attachment) / 2,
                          size.maximum.y - size.height * rowOf(attachment) / 2, 0};
  setLocation(textToWorld() * moved);
  setAttachment(attachment);
}

OdResult OdDbMText::getGeomExtents(OdGeExtents3d& extents) const {
  const OdDbMTextMeasure size = measured();
  const OdGeMatrix3d toWorld = textToWorld();
  extents = OdGeExtents3d();
  for (const double x : {size.minimum.x, size.maximum.x}) {
    for (const double y : {size.minimum.y, size.maximum.y}) extents.addPoint(toWorld * OdGePoint3d{x, y, 0});
  }
  return eOk;
}

void OdDbMText::drawBackground(OdGiWorldDraw& draw, const OdDbMTextMeasure& size) const {
  const double border = (getBackgroundScaleFactor() - 1) * textHeight();
  const OdGePoint2d low = size.minimum - OdGeVector2d{border, border};
  const OdGePoint2d high = size.maximum + OdGeVector2d{border, border};
  const OdGePoint3d corners[] = {
      {low.x, low.y, 0}, {high.x, low.y, 0}, {high.x, high.y, 0}, {low.x, high.y, 0}};
  OdGiSubEntityTraits& traits = draw.geometry().traits();
  const OdGiSubEntityTraits outside = traits;
  if (backgroundFill()) {
    traits.setTrueColor(isBackgroundColorUsed() ? OdCmEntityColor(OdCmEntityColor::kNone)
                                                : OdCmEntityColor(getBackgroundFillColor()));
    traits.setFillType(kOdGiFillAlways);
    draw.geometry().polygon(corners);
    traits = outside;
  }
  if (!showBorders()) return;
  traits.setFillType(kOdGiFillNever);
  draw.geometry().polygon(corners);
  traits = outside;
}

void OdDbMText::drawGeometry(OdGiWorldDraw& draw) const {
  if (!database() || !database()->textLayout()) return;
  OdGiGeometry& geometry = draw.geometry();
  geometry.pushModelTransform(textToWorld());
  if (backgroundFill() || showBorders()) drawBackground(draw, measured());
  database()->textLayout()->draw(*this, draw);
  geometry.popModelTransform();
}
