#include "od/db/OdDbViewportTableRecord.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbViewportTableRecord, OdDbSymbolTableRecord, "VPORT")

namespace {

const OdDbSubclass kViewport{"AcDbViewportTableRecord", {}};

}  // namespace

const OdDbSubclass& OdDbViewportTableRecord::ownPart() const { return kViewport; }

std::unique_ptr<dxf::Record> OdDbViewportTableRecord::newRecord() const {
  return odNewRecord("VPORT", {{100, u"AcDbSymbolTableRecord"},
                               {100, u"AcDbViewportTableRecord"},
                               {2, u"*Active"},
                               {70, 0},
                               {12, 0.0},
                               {22, 0.0},
                               {40, 1.0},
                               {41, 1.0}});
}

OdGePoint2d OdDbViewportTableRecord::centerPoint() const {
  const OdGePoint3d center = groups(kViewport).point(12);
  return {center.x, center.y};
}

double OdDbViewportTableRecord::height() const { return groups(kViewport).real(40, 1); }

double OdDbViewportTableRecord::width() const { return height() * groups(kViewport).real(41, 1); }

OdGePoint3d OdDbViewportTableRecord::target() const { return groups(kViewport).point(17); }

OdGeVector3d OdDbViewportTableRecord::viewDirection() const {
  return groups(kViewport).point(16, {0, 0, 1}).asVector();
}

double OdDbViewportTableRecord::viewTwist() const { return groups(kViewport).angle(51); }
