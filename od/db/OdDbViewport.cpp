#include "od/db/OdDbViewport.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbViewport, OdDbEntity, "VIEWPORT")

namespace {

const OdDbSubclass kViewport{"AcDbViewport", {}};

constexpr int kSwitchedOff = 0x20000;

}  // namespace

std::unique_ptr<dxf::Record> OdDbViewport::newRecord() const {
  return odNewRecord("VIEWPORT", {{100, u"AcDbEntity"},
                                  {8, u"0"},
                                  {100, u"AcDbViewport"},
                                  {10, OdGePoint3d()},
                                  {40, 1.0},
                                  {41, 1.0},
                                  {68, 1},
                                  {69, 2},
                                  {12, 0.0},
                                  {22, 0.0},
                                  {45, 1.0}});
}

int OdDbViewport::number() const { return groups(kViewport).integer(69, 1); }

bool OdDbViewport::isOn() const {
  const OdDbGroups viewport = groups(kViewport);
  return viewport.integer(68, 1) != 0 && !viewport.flag(90, kSwitchedOff);
}

OdGePoint3d OdDbViewport::centerPoint() const { return groups(kViewport).point(10); }

double OdDbViewport::width() const { return groups(kViewport).real(40, 0); }

double OdDbViewport::height() const { return groups(kViewport).real(41, 0); }

OdGePoint2d OdDbViewport::viewCenter() const {
  const OdGePoint3d center = groups(kViewport).point(12);
  return {center.x, center.y};
}

double OdDbViewport::viewHeight() const { return groups(kViewport).real(45, height()); }

OdGeVector3d OdDbViewport::viewDirection() const { return groups(kViewport).point(16, {0, 0, 1}).asVector(); }

OdGePoint3d OdDbViewport::viewTarget() const { return groups(kViewport).point(17); }

double OdDbViewport::twistAngle() const { return groups(kViewport).angle(51); }

void OdDbViewport::drawGeometry(OdGiWorldDraw& draw) const {
  if (number() == 1) return;  // the paper itself
  const OdGePoint3d center = centerPoint();
  const OdGeVector3d x{width() / 2, 0, 0}, y{0, height() / 2, 0};
  const OdGePoint3d corner = center - x - y;
  draw.geometry().polyline({corner, corner + x * 2, center + x + y, center - x + y, corner});
}
