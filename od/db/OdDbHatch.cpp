#include "od/db/OdDbHatch.h"

#include "od/db/hatch_paths.h"

ODRX_DEFINE_MEMBERS(OdDbHatch, OdDbEntity, "HATCH")

namespace {

const OdDbSubclass kHatch{"AcDbHatch", {}};

}  // namespace

OdString OdDbHatch::patternName() const { return groups(kHatch).string(2); }

bool OdDbHatch::isSolidFill() const { return groups(kHatch).flag(70, 1); }

OdGeVector3d OdDbHatch::normal() const { return normalOf(kHatch); }

void OdDbHatch::drawGeometry(OdGiWorldDraw& draw) const {
  const OdDbGroups hatch = groups(kHatch);
  const double elevation = hatch.point(10).z;
  const std::vector<OdGiContour> paths = odHatchPaths(record(), hatch.range());
  if (paths.empty()) return;
  OdGiGeometry& geometry = draw.geometry();
  const OdGiFillType fill = geometry.traits().fillType();
  geometry.traits().setFillType(isSolidFill() ? kOdGiFillAlways : kOdGiFillNever);
  geometry.pushModelTransform(OdGeMatrix3d::planeToWorld(normal()) *
                              OdGeMatrix3d::translation({0, 0, elevation}));
  geometry.polyPolygon(paths);
  geometry.popModelTransform();
  geometry.traits().setFillType(fill);
}
