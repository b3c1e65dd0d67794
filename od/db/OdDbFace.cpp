#include "od/db/OdDbFace.h"

ODRX_DEFINE_MEMBERS(OdDbFace, OdDbEntity, "3DFACE")

namespace {

const OdDbSubclass kFace{"AcDbFace", {}};

}  // namespace

OdGePoint3d OdDbFace::getVertexAt(int index) const {
  if (index < 0 || index > 3) throw OdError_InvalidIndex();
  const OdDbGroups face = groups(kFace);
  return face.point(index == 3 && !face.has(13) ? 12 : 10 + index);
}

bool OdDbFace::isEdgeVisibleAt(int index) const { return !groups(kFace).flag(70, 1 << index); }

void OdDbFace::drawGeometry(OdGiWorldDraw& draw) const {
  for (int i = 0; i < 4; ++i) {
    const OdGePoint3d from = getVertexAt(i), to = getVertexAt((i + 1) % 4);
    if (isEdgeVisibleAt(i) && !(from == to)) draw.geometry().polyline({from, to});
  }
}
