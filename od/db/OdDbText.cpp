#include "od/db/OdDbText.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/new_record.h"
#include "od/db/text_subclass.h"
#include "od/evaluate/evaluate_field.h"

ODRX_DEFINE_MEMBERS(OdDbText, OdDbEntity, "TEXT")

namespace {

const OdDbSubclass& kText = odTextSubclass();
constexpr int kVerticalOrder[] = {73};
const OdDbSubclass kSecondText{"AcDbText", kVerticalOrder, 1};

constexpr int kBackward = 2;
constexpr int kUpsideDown = 4;

}  // namespace

std::unique_ptr<dxf::Record> OdDbText::newRecord() const {
  return odNewRecord("TEXT", {{100, u"AcDbEntity"},
                              {8, u"0"},
                              {100, u"AcDbText"},
                              {10, OdGePoint3d()},
                              {40, 2.5},
                              {1, u""},
                              {100, u"AcDbText"}});
}

OdDbText::VerticalGroup OdDbText::verticalGroup() const { return {&kSecondText, 73}; }

OdString OdDbText::textString() const { return groups(kText).string(1); }

void OdDbText::setTextString(const OdString& text) { edit(kText).setString(1, text); }

void OdDbText::setFieldHostText(const OdDbField& field) { setTextString(odContainerText(field)); }

OdGePoint3d OdDbText::position() const {
  return OdGeMatrix3d::planeToWorld(normal()) * groups(kText).point(10);
}

void OdDbText::setPosition(const OdGePoint3d& position) {
  edit(kText).setPoint(10, OdGeMatrix3d::worldToPlane(normal()) * position);
}

OdGePoint3d OdDbText::alignmentPoint() const {
  const OdDbGroups text = groups(kText);
  // Writers that know no second point leave it out.
  return OdGeMatrix3d::planeToWorld(normal()) * (text.has(11) ? text.point(11) : text.point(10));
}

void OdDbText::setAlignmentPoint(const OdGePoint3d& point) {
  edit(kText).setPoint(11, OdGeMatrix3d::worldToPlane(normal()) * point);
}

bool OdDbText::isDefaultAlignment() const {
  return horizontalMode() == OdDb::kTextLeft && verticalMode() == OdDb::kTextBase;
}

double OdDbText::height() const { return groups(kText).real(40, 0); }

void OdDbText::setHeight(double height) { edit(kText).setReal(40, height); }

double OdDbText::widthFactor() const { return groups(kText).real(41, 1); }

void OdDbText::setWidthFactor(double factor) { edit(kText).setReal(41, factor, 1); }

double OdDbText::oblique() const { return groups(kText).angle(51); }

void OdDbText::setOblique(double angle) { edit(kText).setAngle(51, angle); }

double OdDbText::rotation() const { return groups(kText).angle(50); }

void OdDbText::setRotation(double angle) { edit(kText).setAngle(50, angle); }

double OdDbText::thickness() const { return groups(kText).real(39, 0); }

void OdDbText::setThickness(double thickness) { edit(kText).setReal(39, thickness, 0); }

OdGeVector3d OdDbText::normal() const { return normalOf(kText); }

void OdDbText::setNormal(const OdGeVector3d& normal) {
  const OdGeVector3d unit = normal.normal();
  if (!(unit == this->normal())) edit(kText).setPoint(210, {unit.x, unit.y, unit.z}, OdGePoint3d{0, 0, 1});
}

OdDb::TextHorzMode OdDbText::horizontalMode() const {
  const int mode = groups(kText).integer(72, 0);
  return mode < 0 || mode > 5 ? OdDb::kTextLeft : static_cast<OdDb::TextHorzMode>(mode);
}

void OdDbText::setHorizontalMode(OdDb::TextHorzMode mode) {
  edit(kText).setInteger(72, mode, OdDb::kTextLeft);
}

OdDb::TextVertMode OdDbText::verticalMode() const {
  const VerticalGroup group = verticalGroup();
  const int mode = groups(*group.part).integer(group.code, 0);
  return mode < 0 || mode > 3 ? OdDb::kTextBase : static_cast<OdDb::TextVertMode>(mode);
}

void OdDbText::setVerticalMode(OdDb::TextVertMode mode) {
  const VerticalGroup group = verticalGroup();
  edit(*group.part).setInteger(group.code, mode, OdDb::kTextBase);
}

OdString OdDbText::textStyleName() const { return groups(kText).string(7, u"Standard"); }

OdDbObjectId OdDbText::textStyle() const {
  return database() ? database()->textStyleOrStandard(textStyleName()) : OdDbObjectId();
}

void OdDbText::setTextStyle(OdDbObjectId style) {
  const OdString name = odCastOrThrow<OdDbTextStyleTableRecord>(style.openObject())->getName();
  if (textStyleName().iCompare(name.str()) != 0) edit(kText).setString(7, name, u"Standard");
}

bool OdDbText::isMirroredInX() const { return groups(kText).flag(71, kBackward); }

bool OdDbText::isMirroredInY() const { return groups(kText).flag(71, kUpsideDown); }

void OdDbText::mirrorInX(bool on) { edit(kText).setFlag(71, kBackward, on); }

void OdDbText::mirrorInY(bool on) { edit(kText).setFlag(71, kUpsideDown, on); }

void OdDbText::setDatabaseDefaults(OdDbDatabase* source) {
  OdDbEntity::setDatabaseDefaults(source);
  if (!source) return;
  const OdDbObjectId style = source->getTEXTSTYLE();
  setTextStyle(style);
  const auto record = odOpen<OdDbTextStyleTableRecord>(style);
  setHeight(record->textSize() > 0 ? record->textSize() : source->getSysVarDouble(u"TEXTSIZE", 2.5));
  setWidthFactor(record->xScale());
  setOblique(record->obliquingAngle());
}

OdResult OdDbText::getPlane(OdGePlane& plane) const {
  plane = OdGePlane(position(), normal());
  return eOk;
}
