#include "od/db/OdDbEllipse.h"
#include "od/db/sweep.h"

#include <cmath>

ODRX_DEFINE_MEMBERS(OdDbEllipse, OdDbEntity, "ELLIPSE")

namespace {

const OdDbSubclass kEllipse{"AcDbEllipse", {}};

}  // namespace

OdGePoint3d OdDbEllipse::center() const { return groups(kEllipse).point(10); }

OdGeVector3d OdDbEllipse::majorAxis() const { return groups(kEllipse).point(11, {1, 0, 0}).asVector(); }

OdGeVector3d OdDbEllipse::minorAxis() const {
  return normal().crossProduct(majorAxis()) * groups(kEllipse).real(40, 1);
}

OdGeVector3d OdDbEllipse::normal() const { return normalOf(kEllipse); }

double OdDbEllipse::startParam() const { return groups(kEllipse).real(41, 0); }

double OdDbEllipse::endParam() const { return groups(kEllipse).real(42, kOdTurn); }

void OdDbEllipse::drawGeometry(OdGiWorldDraw& draw) const {
  const double sweep = odSweep(startParam(), endParam());
  const OdGeMatrix3d fromCircle = OdGeMatrix3d::coordSystem(center(), majorAxis(), minorAxis(), normal());
  const OdGeVector3d start{std::cos(startParam()), std::sin(startParam()), 0};
  draw.geometry().pushModelTransform(fromCircle);
  draw.geometry().circularArc({}, 1, OdGeVector3d::kZAxis, start, sweep);
  draw.geometry().popModelTransform();
}
