#include <cmath>

#include "od/db/OdDbMText.h"
#include "od/db/mtext_subclass.h"

// Where a multi-line text lies: location, normal and direction.

namespace {

const OdDbSubclass& kMText = odMTextSubclass();

/// True when two points differ by no more than what reckoning to and fro loses.
bool isSamePlace(const OdGePoint3d& a, const OdGePoint3d& b) {
  const double size = std::max(a.asVector().length(), b.asVector().length());
  return a.distanceTo(b) <= 1e-10 + 1e-14 * size;
}

/// The direction that a file leaves out: the world's x axis as it lies in the text's plane. It is not the x
/// axis that the normal gives; the two differ for a text that is seen from behind.
OdGeVector3d unwrittenDirection(const OdGeVector3d& normal) {
  const OdGeVector3d inPlane = OdGeVector3d::kXAxis - normal * OdGeVector3d::kXAxis.dotProduct(normal);
  return inPlane.isZeroLength() ? normal.perpVector() : inPlane.normal();
}

}  // namespace

OdGePoint3d OdDbMText::location() const { return groups(kMText).point(10); }

void OdDbMText::setLocation(const OdGePoint3d& location) {
  assertWriteEnabled();
  if (isSamePlace(this->location(), location)) return;
  editForm().setPoint(10, location);
  odSetEmbeddedPoint(record(), 11, location);
}

OdGeVector3d OdDbMText::normal() const { return normalOf(kMText); }

void OdDbMText::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d unit = normal.normal();
  if (unit.isZeroLength()) throw OdError(eInvalidInput);
  if (unit.isEqualTo(this->normal())) return;
  editForm().setPoint(210, {unit.x, unit.y, unit.z}, OdGePoint3d{0, 0, 1});
}

OdGeVector3d OdDbMText::direction() const {
  const dxf::Range range = groups(kMText).range();
  const auto vector = record().find(11, range);
  const auto angle = record().find(50, range);
  if (angle && (!vector || *angle > *vector))
    return normal().perpVector().rotatedBy(groups(kMText).angle(50), normal());
  const OdGeVector3d given = vector ? groups(kMText).point(11).asVector() : OdGeVector3d();
  return given.isZeroLength() ? unwrittenDirection(normal()) : given.normal();
}

void OdDbMText::setDirection(const OdGeVector3d& direction) {
  const OdGeVector3d unit = direction.normal();
  if (unit.isZeroLength()) throw OdError(eInvalidInput);
  if (unit.isEqualTo(this->direction())) return;
  OdDbGroupEditor text = editForm();
  text.remove(50);
  text.setPoint(11, {unit.x, unit.y, unit.z});
  odSetEmbeddedPoint(record(), 10, {unit.x, unit.y, unit.z});
}

double OdDbMText::rotation() const { return normal().perpVector().angleTo(direction(), normal()); }

void OdDbMText::setRotation(double rotation) {
  setDirection(normal().perpVector().rotatedBy(rotation, normal()));
}

OdGeMatrix3d OdDbMText::textToWorld() const {
  const OdGeVector3d x = direction(), z = normal();
  return OdGeMatrix3d::coordSystem(location(), x, z.crossProduct(x).normal(), z);
}

OdResult OdDbMText::getPlane(OdGePlane& plane) const {
  plane = OdGePlane(location(), direction(), normal().crossProduct(direction()).normal());
  return eOk;
}
