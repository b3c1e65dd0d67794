#include "od/db/OdDbEntity.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLayerTableRecord.h"
#include "od/db/OdDbSymbolTable.h"
#include "od/db/new_record.h"
#include "od/gi/OdGiRecorder.h"

ODRX_DEFINE_ABSTRACT_MEMBERS(OdDbEntity, OdDbObject)

namespace {

constexpr int kOrder[] = {67, 410, 8, 6, 347, 62, 370, 420, 430, 440, 48, 60, 92, 160, 310, 380, 390, 284};
constexpr int kLayerName = 8;
const OdDbSubclass kCommon{"AcDbEntity", kOrder, 0, kLayerName};

OdDbObjectId recordOf(OdDbObjectId tableId, const OdString& name) {
  const auto table = odOpen<OdDbSymbolTable>(tableId);
  return table ? table->getAt(name) : OdDbObjectId();
}

}  // namespace

std::unique_ptr<dxf::Record> OdDbEntity::newRecord() const {
  const OdString& name = isA()->dxfName();
  return odNewRecord(name.isEmpty() ? isA()->name().toUtf8() : name.toUtf8(),
                     {{100, u"AcDbEntity"}, {8, u"0"}});
}

OdString OdDbEntity::layer() const { return groups(kCommon).string(8, u"0"); }

OdDbObjectId OdDbEntity::layerId() const {
  return database() ? recordOf(database()->getLayerTableId(), layer()) : OdDbObjectId();
}

void OdDbEntity::setLayer(const OdString& name) {
  assertWriteEnabled();
  if (layer().iCompare(name.str()) != 0) edit(kCommon).setString(8, name);
}

void OdDbEntity::setLayer(OdDbObjectId layer) {
  setLayer(odCastOrThrow<OdDbLayerTableRecord>(layer.openObject())->getName());
}

OdCmColor OdDbEntity::color() const {
  const OdDbGroups common = groups(kCommon);
  if (!common.has(420)) return OdCmEntityColor::fromIndex(common.integer(62, OdCmEntityColor::kACIbyLayer));
  const auto rgb = static_cast<unsigned>(common.integer(420, 0)) & 0xFFFFFFu;
  const OdString name = common.string(430);
  const std::size_t divider = name.str().find(u'$');
  if (divider == std::u16string::npos)
    return OdCmColor(OdCmEntityColor::fromRaw(0xC2000000u | rgb), {}, name);
  return OdCmColor(OdCmEntityColor::fromRaw(0xC2000000u | rgb), name.str().substr(0, divider),
                   name.str().substr(divider + 1));
}

int OdDbEntity::colorIndex() const { return color().colorIndex(); }

void OdDbEntity::setColor(const OdCmEntityColor& newColor) {
  if (OdCmEntityColor(color()) == newColor) return;
  OdDbGroupEditor common = edit(kCommon);
  common.setInteger(62, newColor.colorIndex(), OdCmEntityColor::kACIbyLayer);
  if (newColor.isByColor())
    common.setInteger(420, newColor.trueColor());
  else
    common.remove(420);
  common.remove(430);
}

void OdDbEntity::setColorIndex(int index) { setColor(OdCmEntityColor::fromIndex(index)); }

OdString OdDbEntity::linetype() const { return groups(kCommon).string(6, u"ByLayer"); }

void OdDbEntity::setLinetype(const OdString& name) {
  if (linetype().iCompare(name.str()) != 0) edit(kCommon).setString(6, name, u"ByLayer");
}

double OdDbEntity::linetypeScale() const { return groups(kCommon).real(48, 1); }

void OdDbEntity::setLinetypeScale(double scale) { edit(kCommon).setReal(48, scale, 1); }

int OdDbEntity::lineWeight() const { return groups(kCommon).integer(370, OdDb::kLnWtByLayer); }

void OdDbEntity::setLineWeight(int weight) { edit(kCommon).setInteger(370, weight, OdDb::kLnWtByLayer); }

OdGiTransparency OdDbEntity::transparency() const {
  return OdGiTransparency(static_cast<std::uint32_t>(groups(kCommon).integer(440, 0)));
}

void OdDbEntity::setVisibility(OdDb::Visibility visibility, bool) {
  if (visibility == OdDb::kInvisible)
    m_hidden = visibility;
  else
    m_hidden.reset();
}

OdDb::Visibility OdDbEntity::visibility() const {
  if (m_hidden) return *m_hidden;
  return groups(kCommon).integer(60, 0) == 1 ? OdDb::kInvisible : OdDb::kVisible;
}

bool OdDbEntity::isPaperSpace() const { return groups(kCommon).integer(67, 0) == 1; }

void OdDbEntity::markPaperSpace(dxf::Record& record) {
  OdDbGroupEditor(record, kCommon, nullptr).setInteger(67, 1);
}

void OdDbEntity::setDatabaseDefaults(OdDbDatabase* source) {
  if (!source) return;
  if (!isDBRO()) setDatabase(source);
  setLayer(source->getSysVarString(u"CLAYER", u"0"));
  setColorIndex(source->getSysVarInt(u"CECOLOR", OdCmEntityColor::kACIbyLayer));
  setLinetype(source->getSysVarString(u"CELTYPE", u"ByLayer"));
  setLinetypeScale(source->getSysVarDouble(u"CELTSCALE", 1));
  setLineWeight(source->getSysVarInt(u"CELWEIGHT", OdDb::kLnWtByLayer));
}

OdResult OdDbEntity::getPlane(OdGePlane&) const { return eNotApplicable; }

OdResult OdDbEntity::getGeomExtents(OdGeExtents3d& extents) const {
  assertReadEnabled();
  OdGiRecorder recorder;
  const OdGiDefaultContext context;
  OdGiWorldDraw draw(recorder, context);
  drawGeometry(draw);
  if (recorder.primitives().empty()) return eInvalidInput;
  extents = recorder.extents();
  return eOk;
}

unsigned OdDbEntity::setAttributes(OdGiDrawableTraits& traits) {
  traits.setLayer(layer());
  traits.setTrueColor(color());
  traits.setLineType(linetype());
  traits.setLineWeight(lineWeight());
  traits.setTransparency(transparency());
  return 0;
}

bool OdDbEntity::worldDraw(OdGiWorldDraw& draw) {
  assertReadEnabled();
  if (visibility() == OdDb::kVisible) drawGeometry(draw);
  return true;
}

void OdDbEntity::drawGeometry(OdGiWorldDraw&) const {}

OdGeVector3d OdDbEntity::normalOf(const OdDbSubclass& part) const {
  const OdGeVector3d normal = groups(part).point(210, {0, 0, 1}).asVector();
  return normal.isZeroLength() ? OdGeVector3d::kZAxis : normal.normal();
}
