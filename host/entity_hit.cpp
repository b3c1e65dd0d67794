#include "host/entity_hit.h"

#include "host/primitive_hit.h"
#include "od/base/OdArray.h"
#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"
#include "od/gi/OdGiRecorder.h"

namespace host {
namespace {

/// Three corners of a box that may be turned.
struct TextBox {
  OdGePoint3d top_left;
  OdGePoint3d top_right;
  OdGePoint3d bottom_left;
};

TextBox box_of(const OdDbMText& text) {
  const OdDbMTextMeasure size = text.measured();
  const OdGeMatrix3d to_world = text.textToWorld();
  const auto corner = [&](double x, double y) { return to_world * OdGePoint3d{x, y, 0}; };
  return {corner(size.minimum.x, size.maximum.y), corner(size.maximum.x, size.maximum.y),
          corner(size.minimum.x, size.minimum.y)};
}

TextBox box_of(const OdDbText& text) {
  OdArray<OdGePoint3d> corners;
  text.getBoundingPoints(corners);
  return {corners[0], corners[1], corners[2]};
}

/// Whether `offset` lies between 0 and `side`, or beside that by no more than the aperture.
bool lies_along(const OdGeVector3d& offset, const OdGeVector3d& side, double aperture) {
  const double length = side.length();
  const double along = length > 0 ? offset.dotProduct(side) / length : 0;
  return along >= -aperture && along <= length + aperture;
}

bool hits_box(const TextBox& box, const OdGePoint3d& point, double aperture) {
  const OdGeVector3d offset = point - box.top_left;
  const OdGeVector3d flat{offset.x, offset.y, 0};
  return lies_along(flat, box.top_right - box.top_left, aperture) &&
         lies_along(flat, box.bottom_left - box.top_left, aperture);
}

bool is_far(const OdDbEntity& entity, const OdGePoint3d& point, double aperture) {
  OdGeExtents3d box;
  if (entity.getGeomExtents(box) != eOk || !box.isValidExtents()) return false;
  return point.x < box.minPoint().x - aperture || point.x > box.maxPoint().x + aperture ||
         point.y < box.minPoint().y - aperture || point.y > box.maxPoint().y + aperture;
}

bool hits_drawing(OdDbEntity& entity, const OdGePoint3d& point, double aperture) {
  OdGiRecorder recorder;
  recorder.record(entity);
  for (const OdGiPrimitive& primitive : recorder.primitives()) {
    if (hits_primitive(primitive, point, aperture)) return true;
  }
  return false;
}

}  // namespace

bool hits_entity(OdDbEntity& entity, const OdGePoint3d& point, double aperture) {
  if (is_far(entity, point, aperture)) return false;
  if (const auto text = odCast<OdDbMText>(&entity)) return hits_box(box_of(*text), point, aperture);
  if (const auto text = odCast<OdDbText>(&entity)) return hits_box(box_of(*text), point, aperture);
  const auto insert = odCast<OdDbBlockReference>(&entity);
  if (insert && !attribute_at(*insert, point, aperture).isNull()) return true;
  return hits_drawing(entity, point, aperture);
}

OdDbObjectId attribute_at(const OdDbBlockReference& insert, const OdGePoint3d& point, double aperture) {
  for (const OdDbObjectId& id : insert.attributes()) {
    const auto text = odCast<OdDbAttribute>(id.openObject());
    const bool shows = text && !text->isInvisible() && text->visibility() == OdDb::kVisible;
    if (shows && hits_box(box_of(*text), point, aperture)) return id;
  }
  return {};
}

OdDbObjectId attribute_or_entity(const OdDbObjectId& picked, const OdGePoint3d& point, double aperture) {
  const auto insert = odCast<OdDbBlockReference>(picked ? picked.openObject() : OdDbObjectPtr());
  const OdDbObjectId text = insert ? attribute_at(*insert, point, aperture) : OdDbObjectId();
  return text ? text : picked;
}

}  // namespace host
