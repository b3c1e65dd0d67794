#include "od/db/OdDbEllipse.h"

#include <cmath>
#include <numbers>

ODRX_DEFINE_MEMBERS(OdDbEllipse, OdDbEntity, "ELLIPSE")

namespace {

const OdDbSubclass kEllipse{"AcDbEllipse", {}};
constexpr double kTurn = 2 * std::numbers::pi;

}  // namespace

OdGePoint3d OdDbEllipse::center() const { return groups(kEllipse).point(10); }

OdGeVector3d OdDbEllipse::majorAxis() const { return groups(kEllipse).point(11, {1, 0, 0}).asVector(); }

OdGeVector3d OdDbEllipse::minorAxis() const {
  return normal().crossProduct(majorAxis()) * groups(kEllipse).real(40, 1);
}

OdGeVector3d OdDbEllipse::normal() const { return normalOf(kEllipse); }

double OdDbEllipse::startParam() const { return groups(kEllipse).real(41, 0); }

double OdDbEllipse::endParam() const { return groups(kEllipse).real(42, kTurn); }

void OdDbEllipse::drawGeometry(OdGiWorldDraw& draw) const {
  double sweep = std::fmod(endParam() - startParam(), kTurn);
  if (sweep <= 0) sweep += kTurn;
  const OdGeMatrix3d fromCircle = OdGeMatrix3d::coordSystem(center(), majorAxis(), minorAxis(), normal());
  const OdGeVector3d start{std::cos(startParam()), std::sin(startParam()), 0};
  draw.geometry().pushModelTransform(fromCircle);
  draw.geometry().circularArc({}, 1, OdGeVector3d::kZAxis, start, sweep);
  draw.geometry().popModelTransform();
}
