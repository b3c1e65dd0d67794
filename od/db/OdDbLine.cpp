#include "od/db/OdDbLine.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbLine, OdDbEntity, "LINE")

namespace {

constexpr int kOrder[] = {39, 10, 20, 30, 11, 21, 31, 210, 220, 230};
const OdDbSubclass kLine{"AcDbLine", kOrder};

}  // namespace

OdDbLine::OdDbLine(const OdGePoint3d& start, const OdGePoint3d& end) {
  setStartPoint(start);
  setEndPoint(end);
}

std::unique_ptr<dxf::Record> OdDbLine::newRecord() const {
  return odNewRecord(
      "LINE",
      {{100, u"AcDbEntity"}, {8, u"0"}, {100, u"AcDbLine"}, {10, OdGePoint3d()}, {11, OdGePoint3d()}});
}

OdGePoint3d OdDbLine::startPoint() const { return groups(kLine).point(10); }

void OdDbLine::setStartPoint(const OdGePoint3d& point) { edit(kLine).setPoint(10, point); }

OdGePoint3d OdDbLine::endPoint() const { return groups(kLine).point(11); }

void OdDbLine::setEndPoint(const OdGePoint3d& point) { edit(kLine).setPoint(11, point); }

void OdDbLine::drawGeometry(OdGiWorldDraw& draw) const {
  draw.geometry().polyline({startPoint(), endPoint()});
}
