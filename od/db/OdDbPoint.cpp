#include "od/db/OdDbPoint.h"

ODRX_DEFINE_MEMBERS(OdDbPoint, OdDbEntity, "POINT")

namespace {

const OdDbSubclass kPoint{"AcDbPoint", {}};

}  // namespace

OdGePoint3d OdDbPoint::position() const { return groups(kPoint).point(10); }

void OdDbPoint::drawGeometry(OdGiWorldDraw& draw) const {
  draw.geometry().polyline({position(), position()});
}
