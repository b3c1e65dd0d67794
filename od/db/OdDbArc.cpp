#include "od/db/OdDbArc.h"

#include <cmath>

#include "od/db/new_record.h"
#include "od/db/sweep.h"

ODRX_DEFINE_MEMBERS(OdDbArc, OdDbEntity, "ARC")

namespace {

constexpr int kOrder[] = {39, 10, 20, 30, 40, 210, 220, 230};
constexpr int kArcOrder[] = {50, 51};
const OdDbSubclass kCircle{"AcDbCircle", kOrder};
const OdDbSubclass kArc{"AcDbArc", kArcOrder};

}  // namespace

std::unique_ptr<dxf::Record> OdDbArc::newRecord() const {
  return odNewRecord("ARC", {{100, u"AcDbEntity"},
                             {8, u"0"},
                             {100, u"AcDbCircle"},
                             {10, OdGePoint3d()},
                             {40, 0.0},
                             {100, u"AcDbArc"},
                             {50, 0.0},
                             {51, 0.0}});
}

OdGeVector3d OdDbArc::normal() const { return normalOf(kCircle); }

OdGePoint3d OdDbArc::center() const {
  return OdGeMatrix3d::planeToWorld(normal()) * groups(kCircle).point(10);
}

void OdDbArc::setCenter(const OdGePoint3d& center) {
  edit(kCircle).setPoint(10, OdGeMatrix3d::worldToPlane(normal()) * center);
}

double OdDbArc::radius() const { return groups(kCircle).real(40, 0); }

void OdDbArc::setRadius(double radius) { edit(kCircle).setReal(40, radius); }

double OdDbArc::startAngle() const { return groups(kArc).angle(50); }

void OdDbArc::setStartAngle(double angle) { edit(kArc).setAngle(50, angle); }

double OdDbArc::endAngle() const { return groups(kArc).angle(51); }

void OdDbArc::setEndAngle(double angle) { edit(kArc).setAngle(51, angle); }

OdResult OdDbArc::getPlane(OdGePlane& plane) const {
  plane = OdGePlane(center(), normal());
  return eOk;
}

void OdDbArc::drawGeometry(OdGiWorldDraw& draw) const {
  const OdGeVector3d start = normal().perpVector().rotatedBy(startAngle(), normal());
  draw.geometry().circularArc(center(), radius(), normal(), start, odSweep(startAngle(), endAngle()));
}
