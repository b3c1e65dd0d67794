#include "od/db/OdDbBlockTableRecord.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbEntity.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdDbBlockTableRecord, OdDbSymbolTableRecord)

namespace {

const OdDbSubclass kRecordPart{"AcDbBlockTableRecord", {}};
const OdDbSubclass kBeginPart{"AcDbBlockBegin", {}};
const OdDbSubclass kLayoutPart{"AcDbLayout", {}};

constexpr int kAnonymous = 1;
constexpr int kExternal = 4;
constexpr int kOverlay = 8;

bool startsWithNoCase(const OdString& text, std::u16string_view start) {
  return odEqualNoCase(text.str().substr(0, start.size()), start);
}

}  // namespace

const OdDbSubclass& OdDbBlockTableRecord::ownPart() const { return kRecordPart; }

OdGePoint3d OdDbBlockTableRecord::origin() const {
  return m_begin ? OdDbGroups(*m_begin, kBeginPart).point(10) : OdGePoint3d();
}

bool OdDbBlockTableRecord::isModelSpace() const {
  return m_name.iCompare(u"*Model_Space") == 0 || m_name.iCompare(u"$MODEL_SPACE") == 0;
}

bool OdDbBlockTableRecord::isPaperSpace() const {
  return startsWithNoCase(m_name, u"*Paper_Space") || startsWithNoCase(m_name, u"$PAPER_SPACE");
}

bool OdDbBlockTableRecord::isAnonymous() const {
  return m_begin && OdDbGroups(*m_begin, kBeginPart).flag(70, kAnonymous);
}

bool OdDbBlockTableRecord::isFromExternalReference() const {
  return m_begin && OdDbGroups(*m_begin, kBeginPart).flag(70, kExternal | kOverlay);
}

OdString OdDbBlockTableRecord::layoutName() const {
  // The layout's own link counts: the one from block to layout is wrong in some files.
  const auto objects = database()->drawing().file().section("OBJECTS");
  const dxf::Record* end = objects ? objects->end : nullptr;
  for (const dxf::Record* r = objects ? objects->begin : nullptr; r && r != end; r = r->next()) {
    if (!r->is("LAYOUT")) continue;
    const OdDbGroups layout(*r, kLayoutPart);
    if (layout.handle(330) == handle().value()) return layout.string(1);
  }
  return {};
}

std::vector<OdDbObjectId> OdDbBlockTableRecord::entities() const {
  assertReadEnabled();
  std::vector<OdDbObjectId> result;
  result.reserve(m_entities.size());
  for (OdDbStub* stub : m_entities) {
    if (!stub->erased) result.emplace_back(stub);
  }
  return result;
}

OdDbObjectId OdDbBlockTableRecord::appendOdDbEntity(OdDbEntity* entity) {
  assertWriteEnabled();
  if (!entity) throw OdError(eNullObjectPointer);
  if (entity->isDBRO()) throw OdError(eAlreadyInDb);
  return database()->drawing().append(*this, *entity);
}
