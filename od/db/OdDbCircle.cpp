#include "od/db/OdDbCircle.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbCircle, OdDbEntity, "CIRCLE")

namespace {

constexpr int kOrder[] = {39, 10, 20, 30, 40, 210, 220, 230};
const OdDbSubclass kCircle{"AcDbCircle", kOrder};

}  // namespace

OdDbCircle::OdDbCircle(const OdGePoint3d& center, double radius) {
  setCenter(center);
  setRadius(radius);
}

std::unique_ptr<dxf::Record> OdDbCircle::newRecord() const {
  return odNewRecord("CIRCLE",
                     {{100, u"AcDbEntity"}, {8, u"0"}, {100, u"AcDbCircle"}, {10, OdGePoint3d()}, {40, 0.0}});
}

OdGeVector3d OdDbCircle::normal() const { return normalOf(kCircle); }

OdGePoint3d OdDbCircle::center() const {
  return OdGeMatrix3d::planeToWorld(normal()) * groups(kCircle).point(10);
}

void OdDbCircle::setCenter(const OdGePoint3d& center) {
  edit(kCircle).setPoint(10, OdGeMatrix3d::worldToPlane(normal()) * center);
}

double OdDbCircle::radius() const { return groups(kCircle).real(40, 0); }

void OdDbCircle::setRadius(double radius) { edit(kCircle).setReal(40, radius); }

OdResult OdDbCircle::getPlane(OdGePlane& plane) const {
  plane = OdGePlane(center(), normal());
  return eOk;
}

void OdDbCircle::drawGeometry(OdGiWorldDraw& draw) const {
  draw.geometry().circle(center(), radius(), normal());
}
