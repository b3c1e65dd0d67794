#include "od/db/OdDbLeader.h"

#include "od/db/point_list.h"

ODRX_DEFINE_MEMBERS(OdDbLeader, OdDbEntity, "LEADER")

namespace {

const OdDbSubclass kLeader{"AcDbLeader", {}};

}  // namespace

std::vector<OdGePoint3d> OdDbLeader::vertices() const {
  return odPointList(record(), groups(kLeader).range(), 10);
}

void OdDbLeader::drawGeometry(OdGiWorldDraw& draw) const {
  const std::vector<OdGePoint3d> points = vertices();
  if (points.size() > 1) draw.geometry().polyline(points);
}
