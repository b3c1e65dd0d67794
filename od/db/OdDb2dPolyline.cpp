#include "od/db/OdDb2dPolyline.h"

#include "od/db/OdDbStub.h"
#include "od/db/bulge_drawing.h"

ODRX_DEFINE_MEMBERS(OdDb2dPolyline, OdDbEntity, "POLYLINE")

namespace {

// The markers differ by kind and hold the same codes.
const OdDbSubclass kPolyline{"AcDb2dPolyline", {}};

constexpr int kClosed = 1, k3d = 8, kMesh = 16, kPolyface = 64;
constexpr int kControlPoint = 16;

}  // namespace

bool OdDb2dPolyline::isClosed() const { return groups(kPolyline).flag(70, kClosed); }

bool OdDb2dPolyline::isIn3d() const { return groups(kPolyline).flag(70, k3d); }

bool OdDb2dPolyline::isMesh() const { return groups(kPolyline).flag(70, kMesh | kPolyface); }

OdGeVector3d OdDb2dPolyline::normal() const { return normalOf(kPolyline); }

void OdDb2dPolyline::drawGeometry(OdGiWorldDraw& draw) const {
  if (isMesh() || !isDBRO()) return;
  std::vector<OdBulgeVertex> vertices;
  for (const OdDbStub* part : objectId().stub()->parts) {
    if (!part->record->is("VERTEX")) continue;
    // The point and the flags may stand behind either of two markers.
    const dxf::Record& vertex = *part->record;
    const dxf::Range all = vertex.body();
    if (vertex.int_or(70, all, 0) & kControlPoint) continue;
    const dxf::Point p = vertex.point_or(10, all, {});
    vertices.push_back({{p[0], p[1], p[2]}, isIn3d() ? 0 : vertex.double_or(42, all, 0)});
  }
  const OdGeMatrix3d toWorld = isIn3d() ? OdGeMatrix3d() : OdGeMatrix3d::planeToWorld(normal());
  draw.geometry().pushModelTransform(toWorld);
  odDrawBulgeLine(draw.geometry(), vertices, isClosed());
  draw.geometry().popModelTransform();
}
