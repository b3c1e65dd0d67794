#include "od/db/OdDbBlockReference.h"

#include "od/db/OdDbAttribute.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbStub.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/block_drawing.h"
#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbBlockReference, OdDbEntity, "INSERT")

namespace {

constexpr int kOrder[] = {66, 2, 10, 20, 30, 41, 42, 43, 50, 70, 71, 44, 45, 210, 220, 230};
const OdDbSubclass kInsert{"AcDbBlockReference", kOrder};

}  // namespace

std::unique_ptr<dxf::Record> OdDbBlockReference::newRecord() const {
  return odNewRecord(
      "INSERT",
      {{100, u"AcDbEntity"}, {8, u"0"}, {100, u"AcDbBlockReference"}, {2, u""}, {10, OdGePoint3d()}});
}

OdString OdDbBlockReference::blockName() const { return groups(kInsert).string(2); }

OdDbObjectId OdDbBlockReference::blockTableRecord() const {
  const auto table =
      database() ? odOpen<OdDbSymbolTable>(database()->getBlockTableId()) : OdDbSymbolTablePtr();
  return table ? table->getAt(blockName()) : OdDbObjectId();
}

void OdDbBlockReference::setBlockTableRecord(OdDbObjectId block) {
  edit(kInsert).setString(2, odCastOrThrow<OdDbBlockTableRecord>(block.openObject())->getName());
}

OdGePoint3d OdDbBlockReference::position() const {
  return OdGeMatrix3d::planeToWorld(normal()) * groups(kInsert).point(10);
}

void OdDbBlockReference::setPosition(const OdGePoint3d& position) {
  edit(kInsert).setPoint(10, OdGeMatrix3d::worldToPlane(normal()) * position);
}

OdGeVector3d OdDbBlockReference::scaleFactors() const {
  const OdDbGroups insert = groups(kInsert);
  return {insert.real(41, 1), insert.real(42, 1), insert.real(43, 1)};
}

void OdDbBlockReference::setScaleFactors(const OdGeVector3d& scale) {
  OdDbGroupEditor insert = edit(kInsert);
  insert.setReal(41, scale.x, 1);
  insert.setReal(42, scale.y, 1);
  insert.setReal(43, scale.z, 1);
}

double OdDbBlockReference::rotation() const { return groups(kInsert).angle(50); }

void OdDbBlockReference::setRotation(double angle) { edit(kInsert).setAngle(50, angle); }

OdGeVector3d OdDbBlockReference::normal() const { return normalOf(kInsert); }

int OdDbBlockReference::columns() const { return std::max(1, groups(kInsert).integer(70, 1)); }

int OdDbBlockReference::rows() const { return std::max(1, groups(kInsert).integer(71, 1)); }

double OdDbBlockReference::columnSpacing() const { return groups(kInsert).real(44, 0); }

double OdDbBlockReference::rowSpacing() const { return groups(kInsert).real(45, 0); }

std::vector<OdDbObjectId> OdDbBlockReference::attributes() const {
  std::vector<OdDbObjectId> result;
  if (!isDBRO()) return result;
  for (OdDbStub* part : objectId().stub()->parts) {
    if (part->record->is("ATTRIB") && !part->erased) result.emplace_back(part);
  }
  return result;
}

OdGeMatrix3d OdDbBlockReference::blockTransform() const { return blockTransform(0, 0); }

OdGeMatrix3d OdDbBlockReference::blockTransform(int column, int row) const {
  const auto block = odOpen<OdDbBlockTableRecord>(blockTableRecord());
  const OdGePoint3d base = block ? block->origin() : OdGePoint3d();
  const OdGeVector3d scale = scaleFactors();
  // The distances of an array turn with the insert and are not scaled.
  const OdGeVector3d cell{column * columnSpacing(), row * rowSpacing(), 0};
  return OdGeMatrix3d::planeToWorld(normal()) *
         OdGeMatrix3d::translation(groups(kInsert).point(10).asVector()) *
         OdGeMatrix3d::rotation(rotation(), OdGeVector3d::kZAxis) * OdGeMatrix3d::translation(cell) *
         OdGeMatrix3d::scaling(scale.x, scale.y, scale.z) * OdGeMatrix3d::translation(-base.asVector());
}

void OdDbBlockReference::drawGeometry(OdGiWorldDraw& draw) const { OdDbBlockDrawing(draw).draw(*this); }
