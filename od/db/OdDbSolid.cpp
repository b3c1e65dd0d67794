#include "od/db/OdDbSolid.h"

ODRX_DEFINE_MEMBERS(OdDbSolid, OdDbEntity, "SOLID")

namespace {

const OdDbSubclass kTrace{"AcDbTrace", {}};

}  // namespace

OdGeVector3d OdDbSolid::normal() const { return normalOf(kTrace); }

OdGePoint3d OdDbSolid::getPointAt(int index) const {
  if (index < 0 || index > 3) throw OdError_InvalidIndex();
  const OdDbGroups solid = groups(kTrace);
  // A triangle may leave its fourth corner out.
  const int code = index == 3 && !solid.has(13) ? 12 : 10 + index;
  return OdGeMatrix3d::planeToWorld(normal()) * solid.point(code);
}

void OdDbSolid::drawGeometry(OdGiWorldDraw& draw) const {
  OdGiSubEntityTraits& traits = draw.geometry().traits();
  const OdGiFillType fill = traits.fillType();
  traits.setFillType(kOdGiFillAlways);
  draw.geometry().polygon({getPointAt(0), getPointAt(1), getPointAt(3), getPointAt(2)});
  traits.setFillType(fill);
}
